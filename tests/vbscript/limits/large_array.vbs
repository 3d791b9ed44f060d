ReDim a(1000000)
a(1000000) = 1
WScript.Echo UBound(a), a(1000000) '> 1000000 1
