Class K
  Public Sub S
  End Sub
  Public Sub S '! 1041
  End Sub
End Class
