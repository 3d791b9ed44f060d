Function Ordena(ByRef a)
  Dim i, j, t
  For i = UBound(a) - 1 To 0 Step -1
    For j = 0 To i
      If a(j) > a(j + 1) Then t = a(j) : a(j) = a(j + 1) : a(j + 1) = t
    Next
  Next
  Ordena = True
End Function
Function Busca(a, x) : Dim k
  Busca = -1
  k = 0
  Do While k <= UBound(a)
    If a(k) = x Then Busca = k : Exit Do
    k = k + 1
  Loop
End Function
Dim datos : datos = Array(5, 3, 9, 1)
If Ordena(datos) Then WScript.Echo Join(datos, ",") '> 1,3,5,9
WScript.Echo Busca(datos, 9), Busca(datos, 4) '> 3 -1
While UBound(datos) < 5 : ReDim Preserve datos(UBound(datos) + 1) : datos(UBound(datos)) = UBound(datos) : Wend
WScript.Echo Join(datos, " "), Fact(5) '> 1 3 5 9 4 5 120
Function Fact(n) If n <= 1 Then Fact = 1 Else Fact = n * Fact(n - 1) End If End Function
