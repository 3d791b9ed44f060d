' Comparisons are left-associative and True is -1.
WScript.Echo 1 < 2 = True, 5 > 3 > 1 '> True False
WScript.Echo 3 = 3 = -1 '> True
