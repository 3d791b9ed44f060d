Function Menor(a, b, c)
  Menor = a
  If b < Menor Then Menor = b
  If c < Menor Then Menor = c
End Function
Function Distancia(a, b)
  Dim d(), i, j, coste
  ReDim d(Len(a), Len(b))
  For i = 0 To Len(a) : d(i, 0) = i : Next
  For j = 0 To Len(b) : d(0, j) = j : Next
  For i = 1 To Len(a)
    For j = 1 To Len(b)
      coste = 1
      If Mid(a, i, 1) = Mid(b, j, 1) Then coste = 0
      d(i, j) = Menor(d(i - 1, j) + 1, d(i, j - 1) + 1, d(i - 1, j - 1) + coste)
    Next
  Next
  Distancia = d(Len(a), Len(b))
End Function
WScript.Echo Distancia("gato", "pato"), Distancia("camino", "cansino"), Distancia("sabado", "domingo") '> 1 2 6
