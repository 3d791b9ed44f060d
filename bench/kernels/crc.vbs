Function Crc16(words, n)
  Dim crc, i, k, part, bit
  crc = &HFFFF&
  For i = 0 To n - 1
    For part = 0 To 1
      If part = 0 Then
        crc = crc Xor (words(i) \ 256)
      Else
        crc = crc Xor (words(i) And 255)
      End If
      For k = 1 To 8
        bit = crc And 1
        crc = crc \ 2
        If bit = 1 Then crc = crc Xor &HA001&
      Next
    Next
  Next
  Crc16 = crc
End Function
Dim words(999), i, value
value = 1
For i = 0 To 999
  value = (value * 75 + 74) Mod 65537
  words(i) = value And &HFFFF&
Next
For i = 1 To 60
  words(i) = Crc16(words, 1000)
  If i Mod 20 = 0 Then WScript.Echo words(i)
Next
