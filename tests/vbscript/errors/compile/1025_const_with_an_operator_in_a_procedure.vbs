Sub S
  Const LADO = 2 & "b" '! 1025
End Sub
