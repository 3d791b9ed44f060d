Function Suma(n)
  If n = 0 Then Suma = 0 Else Suma = n + Suma(n - 1)
End Function
WScript.Echo Suma(1000) '> 500500
