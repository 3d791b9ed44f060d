Set Me = Nothing '! 1037
