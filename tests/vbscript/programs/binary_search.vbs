Function Busca(a, v)
  Dim bajo, alto, medio
  alto = UBound(a)
  Busca = -1
  Do While bajo <= alto
    medio = (bajo + alto) \ 2
    If a(medio) = v Then
      Busca = medio
      Exit Function
    ElseIf a(medio) < v Then
      bajo = medio + 1
    Else
      alto = medio - 1
    End If
  Loop
End Function
a = Array(2, 3, 5, 7, 11, 13, 17, 19)
WScript.Echo Busca(a, 2), Busca(a, 13), Busca(a, 19), Busca(a, 8) '> 0 5 7 -1
