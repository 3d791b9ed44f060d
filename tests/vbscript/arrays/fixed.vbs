Dim a(3)
a(0) = 1 : a(3) = "x"
WScript.Echo a(0), a(3), TypeName(a(1)) '> 1 x Empty
