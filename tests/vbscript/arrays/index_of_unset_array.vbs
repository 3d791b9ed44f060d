Dim a()
x = a(0) '! 9
