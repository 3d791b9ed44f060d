If Then x = 1 '! 1002
