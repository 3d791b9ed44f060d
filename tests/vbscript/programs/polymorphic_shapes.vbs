Class Circulo
  Public r
  Public Function Area
    Area = Atn(1) * 4 * r ^ 2
  End Function
End Class
Class Rectangulo
  Public a, b
  Public Function Area
    Area = a * b
  End Function
End Class
Function NuevoCirculo(r)
  Set NuevoCirculo = New Circulo
  NuevoCirculo.r = r
End Function
Function NuevoRectangulo(a, b)
  Set NuevoRectangulo = New Rectangulo
  NuevoRectangulo.a = a
  NuevoRectangulo.b = b
End Function
For Each f In Array(NuevoCirculo(1), NuevoRectangulo(3, 4), NuevoCirculo(2))
  WScript.Echo TypeName(f), FormatNumber(f.Area, 3)
Next
'> Circulo 3,142
'> Rectangulo 12,000
'> Circulo 12,566
