x = DateAdd("yyyy", 9000, #1/1/2020#) '! 5
