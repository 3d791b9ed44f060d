'options --pasadas 2
mw.escribir 1, 0, mw.leer(1, 0) + 1
WScript.Echo mw.leer(1, 0)
'> 1
'> 2
