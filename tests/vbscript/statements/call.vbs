Sub Muestra(a, b)
  WScript.Echo a & b
End Sub
Call Muestra("x", 1) '> x1
Muestra "y", 2 '> y2
