WScript.Echo 2 ^ 10, 2 ^ 0.5, 2 ^ -1 '> 1024 1,4142135623731 0,5
WScript.Echo 2 ^ 3 ^ 2, -2 ^ 2, (-2) ^ 2, (-2) ^ 3 '> 64 4 4 -8
WScript.Echo 0 ^ 0, TypeName(2 ^ 2) '> 1 Double
x = 10 ^ 400 '! 6
