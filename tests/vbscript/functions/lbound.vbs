Dim a(3), b(2, 5)
WScript.Echo LBound(a), LBound(b, 1), LBound(b, 2) '> 0 0 0
