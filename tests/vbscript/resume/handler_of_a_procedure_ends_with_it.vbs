Sub Pone
  On Error Resume Next
End Sub
Pone
x = 1 / 0 '! 11
