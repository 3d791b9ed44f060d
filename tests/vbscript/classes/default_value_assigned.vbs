Class K
  Public v
  Public Default Property Get Valor
    Valor = v
  End Property
  Public Property Let Valor(n)
    v = n
  End Property
End Class
Set o = New K
o.Valor = 3
WScript.Echo o + 0 '> 3
