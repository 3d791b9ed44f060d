x = mw.leer(1, 0)
mw.escribir 1, 5, 65535
mw.escribir 1, 5, 65536
mw.escribir 1, 5, -1
WScript.Echo mw.leer(1, 5) '> 65535
