For i = 1 Until 3 '! 1013
Next
