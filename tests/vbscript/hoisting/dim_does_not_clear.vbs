For i = 1 To 3
  Dim x
  x = x + 1
Next
WScript.Echo x '> 3
