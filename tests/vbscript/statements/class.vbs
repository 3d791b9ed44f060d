Class Punto
  Public X, Y
  Public Function Suma()
    Suma = X + Y
  End Function
End Class
Set p = New Punto
p.X = 3 : p.Y = 4
WScript.Echo p.Suma(), p.X '> 7 3
