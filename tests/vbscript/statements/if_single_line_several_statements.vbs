If False Then WScript.Echo "a" : WScript.Echo "b"
If True Then x = 1 : y = 2 Else x = 3 : y = 4
WScript.Echo x, y '> 1 2
If False Then x = 1 : y = 2 Else x = 3 : y = 4
WScript.Echo x, y '> 3 4
