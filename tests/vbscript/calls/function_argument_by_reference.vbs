Function Siguiente(n)
  n = n + 1
  Siguiente = n
End Function
x = 5
y = Siguiente(x) + Siguiente(x)
WScript.Echo x, y '> 7 13
