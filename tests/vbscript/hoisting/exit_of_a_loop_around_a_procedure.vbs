For i = 1 To 2
  Sub S
    Exit For '! 1039
  End Sub
Next
