a = 5
WScript.Echo -a, - -a, 3 - -a, -"7" '> -5 5 8 -7
WScript.Echo -5 \ 2, -5 Mod 3 '> -2 -2
WScript.Echo -True, TypeName(-True) '> 1 Integer
