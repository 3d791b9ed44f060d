For i = 0 To 7
  g = i Xor (i \ 2)
  s = s & Right("00" & (g \ 4 And 1) & (g \ 2 And 1) & (g And 1), 3) & " "
Next
WScript.Echo RTrim(s) '> 000 001 011 010 110 111 101 100
