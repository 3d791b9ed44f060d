WScript.Echo mw.leer(77, 0), mw.leer(77, 250) '> 0 0
mw.escribir 77, 260, 5
WScript.Echo mw.leer(77, 260) '> 5
