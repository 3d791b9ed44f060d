Const C = 1
C = 2 '! 501
