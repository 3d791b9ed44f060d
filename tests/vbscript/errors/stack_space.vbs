Sub S
  S '! 28
End Sub
S
