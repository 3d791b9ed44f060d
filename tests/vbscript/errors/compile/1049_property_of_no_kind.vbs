Class K
  Public Property P '! 1049
  End Property
End Class
