Dim a(3)
WScript.Echo UBound(a, 2) '! 9
