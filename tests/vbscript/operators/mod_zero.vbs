x = 10 Mod 0 '! 11
