WScript.Echo 10 Mod 3, -10 Mod 3, 10 Mod -3 '> 1 -1 1
WScript.Echo 12.6 Mod 5, 10.5 Mod 3, 11.5 Mod 4 '> 3 1 0
WScript.Echo TypeName(10 Mod 3), TypeName(12.6 Mod 5) '> Integer Long
