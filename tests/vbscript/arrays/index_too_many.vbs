Dim a(3)
x = a(1, 1) '! 9
