ReDim a(1)
a(0) = "cero" : a(1) = "uno"
ReDim Preserve a(3)
WScript.Echo a(0), a(1), TypeName(a(3)) '> cero uno Empty
ReDim Preserve a(0)
WScript.Echo UBound(a), a(0) '> 0 cero
