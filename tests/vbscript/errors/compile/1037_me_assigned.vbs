Class K
  Public Sub S
    Set Me = Nothing '! 1037
  End Sub
End Class
