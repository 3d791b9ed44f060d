x = noExiste(1) '! 13
