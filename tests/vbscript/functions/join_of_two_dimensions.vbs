Dim a(1, 1)
x = Join(a) '! 5
