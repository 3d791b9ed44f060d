ReDim a(1, 1)
a(0, 0) = 1 : a(1, 1) = 4
ReDim Preserve a(1, 3)
WScript.Echo a(0, 0), a(1, 1), UBound(a, 2) '> 1 4 3
