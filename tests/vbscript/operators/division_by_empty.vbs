x = 1 / nada '! 11
