x = Left "abc", 1 '! 1025
