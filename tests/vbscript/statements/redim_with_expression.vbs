n = 4
ReDim a(n * 2 + 1)
WScript.Echo UBound(a) '> 9
