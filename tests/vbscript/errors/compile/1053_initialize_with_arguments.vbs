Class K
  Private Sub Class_Initialize(a) '! 1053
  End Sub
End Class
