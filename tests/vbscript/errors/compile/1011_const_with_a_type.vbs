Const N As Long = 5 '! 1011
