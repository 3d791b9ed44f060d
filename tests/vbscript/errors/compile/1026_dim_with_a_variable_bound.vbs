n = 5
Dim a(n) '! 1026
