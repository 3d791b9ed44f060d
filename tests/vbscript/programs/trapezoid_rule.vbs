Function F(x) : F = x * x : End Function
Function Integral(name, a, b, n)
  Dim h, i, g : Set g = GetRef(name)
  h = (b - a) / n
  Integral = (g(a) + g(b)) / 2
  For i = 1 To n - 1 : Integral = Integral + g(a + i * h) : Next
  Integral = Integral * h
End Function
WScript.Echo Round(Integral("F", 0, 3, 1000), 4) '> 9
