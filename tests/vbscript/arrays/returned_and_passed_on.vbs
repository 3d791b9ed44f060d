Function Dobla(ByVal a)
  For i = 0 To UBound(a)
    a(i) = a(i) * 2
  Next
  Dobla = a
End Function
x = Array(1, 2, 3)
y = Dobla(x)
WScript.Echo Join(x), Join(y) '> 1 2 3 2 4 6
