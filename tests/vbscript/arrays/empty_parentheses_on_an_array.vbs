Dim a(3)
x = a() '! 9
