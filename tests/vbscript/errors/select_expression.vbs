Select Case 1 / 0 '! 11
  Case 1
End Select
