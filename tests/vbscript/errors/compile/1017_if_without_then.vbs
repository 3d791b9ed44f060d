If x = 1 '! 1017
  y = 2
End If
