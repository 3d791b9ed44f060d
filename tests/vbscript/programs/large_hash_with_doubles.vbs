Function Modulo(x, m)
  Modulo = x - Int(x / m) * m
End Function
h = 5381
For i = 1 To 7
  h = Modulo(h * 33 + Asc(Mid("esclavo", i, 1)), 4294967296)
Next
WScript.Echo h '> 1979135218
