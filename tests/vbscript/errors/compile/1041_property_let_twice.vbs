Class C
  Property Let a(v)
  End Property
  Property Let a(v) '! 1041
  End Property
End Class
