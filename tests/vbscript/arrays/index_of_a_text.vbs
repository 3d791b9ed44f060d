x = "abc"
y = x(1) '! 13
