Class Pila
  Private datos(), n
  Public Sub Mete(v)
    ReDim Preserve datos(n)
    datos(n) = v
    n = n + 1
  End Sub
  Public Function Saca
    n = n - 1
    Saca = datos(n)
  End Function
End Class
Set p = New Pila
p.Mete "a" : p.Mete "b"
WScript.Echo p.Saca, p.Saca '> b a
