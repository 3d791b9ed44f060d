Dim x = 5 '! 1025
