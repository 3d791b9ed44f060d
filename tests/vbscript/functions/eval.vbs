x = 4
WScript.Echo Eval("x * 2 + 1") '> 9
WScript.Echo Eval("x = 4"), Eval("x = 5") '> True False
WScript.Echo x '> 4
