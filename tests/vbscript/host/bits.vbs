x = mw.leer(1, 0)
mw.escribir 1, 5, 8
WScript.Echo mw.leer(1, 5, 3), mw.leer(1, 5, 2), mw.leer(1, 5, -1) '> 1 0 8
mw.escribir_bit 1, 5, 0, 1
WScript.Echo mw.leer(1, 5) '> 9
mw.escribir_bit 1, 5, 3, 0
WScript.Echo mw.leer(1, 5) '> 1
mw.escribir_bit 1, 5, 16, 1
mw.escribir_bit 1, 5, 2, 2
WScript.Echo mw.leer(1, 5) '> 1
