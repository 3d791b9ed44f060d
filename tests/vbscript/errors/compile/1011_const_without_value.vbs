Const C '! 1011
