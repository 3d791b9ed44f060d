x = "lista: " & Array(1) '! 13
