If True Then : x = 1 : End If
WScript.Echo x '> 1
