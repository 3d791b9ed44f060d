x = mw.leer(50, 0)
mw.escribir 50, 99, 1
mw.escribir 50, 100, 1 '! 9
