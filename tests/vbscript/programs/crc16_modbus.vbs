Function Crc(bytes)
  Dim b, i
  Crc = &HFFFF&
  For Each b In bytes
    Crc = Crc Xor b
    For i = 1 To 8
      If Crc And 1 Then Crc = (Crc \ 2) Xor &HA001& Else Crc = Crc \ 2
    Next
  Next
End Function
WScript.Echo Hex(Crc(Array(1, 3, 0, 0, 0, 10))) '> CDC5
