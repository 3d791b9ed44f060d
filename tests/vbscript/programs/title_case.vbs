Function Titulo(t)
  Dim p, i
  p = Split(LCase(t))
  For i = 0 To UBound(p)
    p(i) = UCase(Left(p(i), 1)) & Mid(p(i), 2)
  Next
  Titulo = Join(p)
End Function
WScript.Echo Titulo("la CASA de ángela") '> La Casa De Ángela
