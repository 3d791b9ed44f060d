x = 5 Mod 0 '! 11
