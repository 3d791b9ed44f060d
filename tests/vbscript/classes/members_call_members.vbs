Class K
  Private Function Suma(a, b)
    Suma = a + b
  End Function
  Public Function Total(n)
    Total = Suma(n, 1) + Me.Extra
  End Function
  Public Property Get Extra
    Extra = 100
  End Property
End Class
Set o = New K
WScript.Echo o.Total(5) '> 106
