Option Explicit
Sub S()
  Dim a
  a = 1
  b = 2 '! 500
End Sub
S
