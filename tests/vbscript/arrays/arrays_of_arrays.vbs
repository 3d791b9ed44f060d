Dim a(2)
a(0) = Array(1, 2)
a(1) = Array("x", Array("hondo"))
a(0)(1) = 5
WScript.Echo a(0)(1), a(1)(1)(0) '> 5 hondo
