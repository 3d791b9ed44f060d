For i = 1 To "fin" '! 13
Next
