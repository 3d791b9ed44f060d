For i = 1 To 2
  For Each i In Array(1) '! 1040
  Next
Next
