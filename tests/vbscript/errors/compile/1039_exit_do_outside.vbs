For i = 1 To 3
  Exit Do '! 1039
Next
