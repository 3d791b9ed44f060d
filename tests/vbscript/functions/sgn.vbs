WScript.Echo Sgn(-5), Sgn(0), Sgn(7.5), Sgn("-2") '> -1 0 1 -1
WScript.Echo TypeName(Sgn(2.5)) '> Integer
