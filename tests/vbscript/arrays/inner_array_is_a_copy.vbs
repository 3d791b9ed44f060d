b = Array(1, 2)
a = Array(b)
b(0) = 99
WScript.Echo a(0)(0) '> 1
