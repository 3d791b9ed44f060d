For i = 1 To 10
  i = i + 4
  n = n + 1
Next
WScript.Echo n, i '> 2 11
