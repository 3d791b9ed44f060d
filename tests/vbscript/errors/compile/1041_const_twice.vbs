Const C = 1
Const C = 2 '! 1041
