Class C
  Private v
  Public Property Let Valor(n)
    v = n * 10
  End Property
  Public Property Get Valor
    Valor = v
  End Property
End Class
Set o = New C
o.Valor = 5
WScript.Echo o.Valor '> 50
