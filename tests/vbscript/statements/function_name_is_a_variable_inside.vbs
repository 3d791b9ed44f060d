Function Suma(n)
  Suma = 0
  For i = 1 To n
    Suma = Suma + i
  Next
End Function
WScript.Echo Suma(10) '> 55
