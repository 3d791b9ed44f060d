Function Mezcla(a, b)
  Dim r(), i, j, k
  ReDim r(UBound(a) + UBound(b) + 1)
  Do While i <= UBound(a) Or j <= UBound(b)
    If j > UBound(b) Then
      tomaA = True
    ElseIf i > UBound(a) Then
      tomaA = False
    Else
      tomaA = StrComp(a(i), b(j), vbTextCompare) <= 0
    End If
    If tomaA Then
      r(k) = a(i) : i = i + 1
    Else
      r(k) = b(j) : j = j + 1
    End If
    k = k + 1
  Loop
  Mezcla = r
End Function

Function Trozo(a, desde, hasta)
  Dim r(), i
  ReDim r(hasta - desde)
  For i = desde To hasta
    r(i - desde) = a(i)
  Next
  Trozo = r
End Function

Function Ordena(a)
  If UBound(a) < 1 Then
    Ordena = a
  Else
    m = UBound(a) \ 2
    Ordena = Mezcla(Ordena(Trozo(a, 0, m)), Ordena(Trozo(a, m + 1, UBound(a))))
  End If
End Function

WScript.Echo Join(Ordena(Split("pera Uva manzana Kiwi fresa higo Ciruela")))
'> Ciruela fresa higo Kiwi manzana pera Uva
