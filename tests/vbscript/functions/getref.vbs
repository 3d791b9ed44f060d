Function Doble(n)
  Doble = n * 2
End Function
Set f = GetRef("Doble")
WScript.Echo f(21) '> 42
WScript.Echo IsObject(f) '> True
