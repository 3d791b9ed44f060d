For i = 1 To 3
Next i '! 1025
