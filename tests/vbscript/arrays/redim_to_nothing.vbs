ReDim a(-1)
WScript.Echo UBound(a) '> -1
ReDim Preserve a(0)
a(0) = 1
WScript.Echo UBound(a) '> 0
