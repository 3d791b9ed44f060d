x = Array(1, 2)
x = 5
WScript.Echo x '> 5
