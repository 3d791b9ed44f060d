Class K
  Public Property Get P
  End Sub '! 1050
End Class
