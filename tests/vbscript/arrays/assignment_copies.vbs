a = Array(1, 2, 3)
b = a
b(0) = 99
WScript.Echo a(0), b(0) '> 1 99
