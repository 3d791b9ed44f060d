Dim s
Function Prueba(v)
  s = s & v
  Prueba = v
End Function
Select Case 2
  Case Prueba(1), Prueba(2), Prueba(3)
  Case Prueba(4)
End Select
WScript.Echo s '> 12
