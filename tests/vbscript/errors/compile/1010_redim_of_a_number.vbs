ReDim 5 '! 1010
