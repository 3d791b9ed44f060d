Dim x, y, X '! 1041
