x = mw.leer(1, 0)
mw.escribir_C2 1, 5, -1
mw.escribir_C2 1, 6, -32768
mw.escribir_C2 1, 7, 40000
WScript.Echo mw.leer(1, 5), mw.leer(1, 6), mw.leer(1, 7) '> 65535 32768 40000
