Option Explicit
If False Then
  Dim x
End If
x = 3
WScript.Echo x '> 3
