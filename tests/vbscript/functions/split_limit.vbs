a = Split("a,b,c,d", ",", 2)
WScript.Echo UBound(a), a(0), a(1) '> 1 a b,c,d
