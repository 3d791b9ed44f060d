x = Round(1.5, 23) '! 5
