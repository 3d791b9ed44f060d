Class K
  Public Property Set P '! 1054
  End Property
End Class
