Do x < 3 '! 1028
Loop
