Set r = New RegExp
r.NoExiste = 1 '! 438
