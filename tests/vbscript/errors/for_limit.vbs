For i = 1 To 1 / 0 '! 11
Next
