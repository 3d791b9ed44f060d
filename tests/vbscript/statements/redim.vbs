Dim a()
ReDim a(3)
a(3) = "x"
ReDim a(5)
WScript.Echo UBound(a), TypeName(a(3)) '> 5 Empty
