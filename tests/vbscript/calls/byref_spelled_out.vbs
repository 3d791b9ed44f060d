Sub Mezcla(ByRef a, ByVal b)
  a = a + 1
  b = b + 1
End Sub
x = 1 : y = 1
Mezcla x, y
WScript.Echo x, y '> 2 1
