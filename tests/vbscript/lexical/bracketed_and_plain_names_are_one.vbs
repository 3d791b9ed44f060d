[x] = 5
WScript.Echo x '> 5
