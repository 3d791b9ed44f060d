On Error Resume Next
For i = 1 To 3
  x = 1 / 0
  n = n + 1
Next
WScript.Echo n, i, Err.Number '> 3 4 11
