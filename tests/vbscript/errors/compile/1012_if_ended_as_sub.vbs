If True Then
  x = 1
End Sub '! 1012
