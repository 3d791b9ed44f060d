Function Suma(n)
  Dim mio
  mio = n
  If n > 0 Then Suma = Suma(n - 1)
  Suma = Suma + mio
End Function
WScript.Echo Suma(10) '> 55
