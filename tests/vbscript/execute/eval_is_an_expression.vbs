x = 5
WScript.Echo Eval("x = 5"), Eval("x = 6") '> True False
WScript.Echo x '> 5
Execute "x = 6"
WScript.Echo x '> 6
