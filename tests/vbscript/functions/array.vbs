a = Array(10, "dos", Empty)
WScript.Echo LBound(a), UBound(a) '> 0 2
WScript.Echo a(0), a(1), TypeName(a(2)) '> 10 dos Empty
