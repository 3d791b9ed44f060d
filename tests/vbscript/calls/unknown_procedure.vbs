noExiste 1 '! 13
