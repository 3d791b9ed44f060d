Execute "Execute ""x = 5"" : x = x + 1"
WScript.Echo x '> 6
