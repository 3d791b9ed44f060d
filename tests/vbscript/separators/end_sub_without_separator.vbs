Dim x
Sub S
  x = 1 End Sub
S
WScript.Echo x '> 1
