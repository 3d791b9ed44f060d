a = Array(1, 2)
x = a("uno") '! 13
