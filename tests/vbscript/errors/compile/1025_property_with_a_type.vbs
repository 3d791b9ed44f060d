Class C
  Property Get Total() As Long '! 1025
  End Property
End Class
