x = 1
Execute "x = x + 10 : y = 7"
WScript.Echo x, y '> 11 7
