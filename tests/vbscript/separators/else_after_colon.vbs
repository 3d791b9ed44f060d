If False Then x = 1 : y = 1 Else x = 2
WScript.Echo x, TypeName(y) '> 2 Empty
