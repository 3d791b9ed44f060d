mw.noExiste 1 '! 438
