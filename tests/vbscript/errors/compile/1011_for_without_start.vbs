For i 1 To 3 '! 1011
Next
