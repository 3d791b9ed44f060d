x = 5
y = x.Algo '! 424
