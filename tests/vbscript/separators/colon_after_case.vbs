Select Case 2 : Case 1 : x = "uno" : Case 2 : x = "dos" : End Select
WScript.Echo x '> dos
