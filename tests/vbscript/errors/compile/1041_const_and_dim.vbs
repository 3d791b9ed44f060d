Dim C
Const C = 2 '! 1041
