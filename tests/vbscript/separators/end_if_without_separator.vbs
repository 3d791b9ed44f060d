If True Then
  x = 3 End If
WScript.Echo x '> 3
