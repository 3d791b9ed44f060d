Dim a(2)
a = Array(1, 2, 3) '! 13
