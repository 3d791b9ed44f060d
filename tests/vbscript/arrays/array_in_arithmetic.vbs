a = Array(1)
x = a + 1 '! 13
