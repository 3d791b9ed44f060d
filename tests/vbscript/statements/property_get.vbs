Class C
  Public Property Get Doble(n)
    Doble = n * 2
  End Property
  Public Property Get Fijo
    Fijo = 7
  End Property
End Class
Set o = New C
WScript.Echo o.Doble(4), o.Fijo, o.Fijo() '> 8 7 7
