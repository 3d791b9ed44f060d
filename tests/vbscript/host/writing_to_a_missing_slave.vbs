mw.escribir 200, 0, 1 '! 9
