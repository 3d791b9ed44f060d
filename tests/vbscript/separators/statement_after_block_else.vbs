If False Then
  x = "a"
Else x = "b"
End If
WScript.Echo x '> b
