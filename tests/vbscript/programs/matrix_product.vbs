Function Producto(a, b)
  Dim c(), i, j, k
  ReDim c(UBound(a, 1), UBound(b, 2))
  For i = 0 To UBound(a, 1)
    For j = 0 To UBound(b, 2)
      For k = 0 To UBound(a, 2)
        c(i, j) = c(i, j) + a(i, k) * b(k, j)
      Next
    Next
  Next
  Producto = c
End Function
Dim a(2, 1), b(1, 2)
For i = 0 To 2
  For j = 0 To 1
    n = n + 1
    a(i, j) = n
  Next
Next
For i = 0 To 1
  For j = 0 To 2
    n = n + 1
    b(i, j) = n
  Next
Next
c = Producto(a, b)
For i = 0 To 2
  WScript.Echo c(i, 0), c(i, 1), c(i, 2)
Next
'> 27 30 33
'> 61 68 75
'> 95 106 117
