Class K
  Public Property Get P(a, b)
  End Property
  Public Property Let P(a, v) '! 1051 @*
  End Property
End Class
