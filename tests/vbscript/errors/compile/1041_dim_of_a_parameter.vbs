Sub S(a)
  Dim a '! 1041
End Sub
