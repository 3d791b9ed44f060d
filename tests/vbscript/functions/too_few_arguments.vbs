x = Left("abc") '! 450
