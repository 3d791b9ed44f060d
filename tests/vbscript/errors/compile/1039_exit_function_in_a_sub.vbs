Sub S
  Exit Function '! 1039
End Sub
