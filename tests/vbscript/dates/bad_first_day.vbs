x = Weekday(Now, 8) '! 5
