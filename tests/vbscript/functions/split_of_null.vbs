x = Split(Null) '! 94
