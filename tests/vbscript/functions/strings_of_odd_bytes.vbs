' Bytes may be joined one by one; two make a character.
For i = 1 To 5
  s = s & ChrB(64 + i)
Next
WScript.Echo LenB(s), Len(s), AscB(MidB(s, 3, 1)) '> 5 2 67
t = ChrB(65) & ChrB(0) & "B" & ChrB(67) & ChrB(0)
WScript.Echo t '> ABC
