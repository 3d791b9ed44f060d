x = Replace("abc", "a", "b", 1, -2) '! 5
