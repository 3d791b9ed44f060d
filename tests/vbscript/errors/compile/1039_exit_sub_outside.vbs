Exit Sub '! 1039
