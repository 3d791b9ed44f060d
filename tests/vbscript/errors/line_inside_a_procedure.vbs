Sub S

  x = 1 / 0 '! 11
End Sub

S
