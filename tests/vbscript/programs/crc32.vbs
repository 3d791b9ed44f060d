' Long is signed, so the shift to the right clears what the sign brought in.
Function Derecha(n)
  Derecha = (n And &H7FFFFFFF) \ 2
  If n < 0 Then Derecha = Derecha Or &H40000000
End Function

Function Crc32(t)
  Dim i, k
  Crc32 = &HFFFFFFFF
  For i = 1 To Len(t)
    Crc32 = Crc32 Xor Asc(Mid(t, i, 1))
    For k = 1 To 8
      If Crc32 And 1 Then Crc32 = Derecha(Crc32) Xor &HEDB88320 Else Crc32 = Derecha(Crc32)
    Next
  Next
  Crc32 = Not Crc32
End Function
WScript.Echo Hex(Crc32("123456789")), Hex(Crc32("hola")) '> CBF43926 6FA0F988
