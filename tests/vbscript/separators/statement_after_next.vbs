For i = 1 To 2
  n = n + i
Next : WScript.Echo n '> 3
