fin = 3
For i = 1 To fin
  fin = 100
  n = n + 1
Next
WScript.Echo n '> 3
