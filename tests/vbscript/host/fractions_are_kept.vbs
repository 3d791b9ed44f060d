x = mw.leer(1, 0)
mw.escribir 1, 5, 12.5
WScript.Echo mw.leer(1, 5) '> 12,5
