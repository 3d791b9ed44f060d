For i = 1 To 3
  For i = 1 To 3 '! 1040
  Next
Next
