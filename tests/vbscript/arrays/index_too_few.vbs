Dim a(3, 3)
x = a(1) '! 9
