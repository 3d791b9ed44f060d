Dim a(3), b(2, 5)
WScript.Echo UBound(a), UBound(b), UBound(b, 1), UBound(b, 2) '> 3 2 2 5
