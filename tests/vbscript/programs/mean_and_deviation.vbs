Function Media(a)
  Dim v
  For Each v In a
    Media = Media + v
  Next
  Media = Media / (UBound(a) + 1)
End Function
Function Desviacion(a)
  Dim v, m, s
  m = Media(a)
  For Each v In a
    s = s + (v - m) ^ 2
  Next
  Desviacion = Sqr(s / (UBound(a) + 1))
End Function
datos = Array(2, 4, 4, 4, 5, 5, 7, 9)
WScript.Echo Media(datos), Desviacion(datos) '> 5 2
