x = mw.leer(1, 0)
mw.escribir 1, 5, 1234
WScript.Echo mw.leer(1, 5), TypeName(mw.leer(1, 5)) '> 1234 Double
