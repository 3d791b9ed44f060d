Function Menor(m, n, columna)
  Dim r(), i, j, k
  ReDim r(n - 2, n - 2)
  For i = 1 To n - 1
    k = 0
    For j = 0 To n - 1
      If j <> columna Then
        r(i - 1, k) = m(i, j)
        k = k + 1
      End If
    Next
  Next
  Menor = r
End Function
Function Det(m, n)
  Dim j
  If n = 1 Then
    Det = m(0, 0)
    Exit Function
  End If
  For j = 0 To n - 1
    Det = Det + (-1) ^ j * m(0, j) * Det(Menor(m, n, j), n - 1)
  Next
End Function
Dim m(2, 2)
v = Array(6, 1, 1, 4, -2, 5, 2, 8, 7)
For i = 0 To 8
  m(i \ 3, i Mod 3) = v(i)
Next
WScript.Echo Det(m, 3) '> -306
