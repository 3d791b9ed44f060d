Function Area(base, altura)
  Area = base * altura / 2
End Function
WScript.Echo Area(6, 5) '> 15
