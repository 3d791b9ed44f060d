Function Raiz(n)
  Dim previa
  Raiz = n / 2
  Do
    previa = Raiz
    Raiz = (previa + n / previa) / 2
  Loop While Abs(Raiz - previa) > 1E-12
End Function
WScript.Echo Round(Raiz(2), 12), Raiz(144) '> 1,414213562373 12
