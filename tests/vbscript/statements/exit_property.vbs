Class C
  Private valor
  Public Property Let V(n)
    If n < 0 Then Exit Property
    valor = n
  End Property
  Public Property Get V
    V = valor
    Exit Property
    V = "nunca"
  End Property
End Class
Set o = New C
o.V = 5
o.V = -1
WScript.Echo o.V '> 5
