x = StrComp("a", "b", 7) '! 5
