Sub Suma1(a, b)
  a = a + 1
  b = b + 1
End Sub
x = 1 : y = 1
Suma1 (x), y
WScript.Echo x, y '> 1 2
