x = "hola" And True '! 13
