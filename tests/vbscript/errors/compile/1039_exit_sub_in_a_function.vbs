Function F
  Exit Sub '! 1039
End Function
