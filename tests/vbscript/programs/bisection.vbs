Function F(x)
  F = Cos(x) - x
End Function
Function Raiz(f, ByVal a, ByVal b)
  Dim m
  Do While b - a > 0.00000000001
    m = (a + b) / 2
    If f(m) > 0 Then a = m Else b = m
  Loop
  Raiz = m
End Function
WScript.Echo FormatNumber(Raiz(GetRef("F"), 0, 1), 8) '> 0,73908513
