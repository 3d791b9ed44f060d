Dim a(1)
a(0) = "x"
b = a
ReDim Preserve b(5)
WScript.Echo UBound(a), UBound(b), b(0) '> 1 5 x
