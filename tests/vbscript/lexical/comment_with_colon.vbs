x = 1 ' : x = 2
WScript.Echo x '> 1
