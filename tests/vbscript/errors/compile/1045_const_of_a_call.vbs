Const C = Len("abc") '! 1045
