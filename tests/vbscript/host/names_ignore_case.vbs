x = MW.Leer(1, 0)
mw.ESCRIBIR 1, 5, 7
WScript.Echo Mw.LEER(1, 5) '> 7
