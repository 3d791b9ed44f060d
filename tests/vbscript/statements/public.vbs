Public a, b(2)
Public Function F()
  F = a
End Function
a = 9
WScript.Echo F(), UBound(b) '> 9 2
