x = mw.leer("uno", 0) '! 13
