a = Split("a b", "")
WScript.Echo UBound(a), a(0) '> 0 a b
