For i = 1 To 2
  For j = 1 To 2
    For i = 1 To 2 '! 1040
    Next
  Next
Next
