For i = 1 To 2
  For j = 1 To 1 : s = s & i & j & " " : Next
  For j = 2 To 2 : s = s & i & j & " " : Next
Next
For i = 3 To 3 : s = s & i : Next
WScript.Echo s '> 11 12 21 22 3
