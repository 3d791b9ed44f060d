y = nada(0) '! 13
