Class C
  Public Property Get V
    V = 1
  End Property
End Class
Set o = New C
o.V = 5 '! 438
