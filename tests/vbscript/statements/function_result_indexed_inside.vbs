Sub Muestra(v) WScript.Echo v End Sub
Function G
  G = Array(5, 6)
  Muestra G(1)
  G(0) = 7
  G = G(0) + 0
End Function
Sub F
  Dim F
  F = Array(5)
  WScript.Echo F(0) '> 5
End Sub
F
