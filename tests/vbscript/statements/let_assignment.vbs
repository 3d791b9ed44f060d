a = 5
b = a
a = 6
WScript.Echo a, b '> 6 5
