For i = 1 To 2
  Function Suma(n)
    Dim i
    For i = 1 To n
      Suma = Suma + i
    Next
  End Function
Next
WScript.Echo Suma(4), i '> 10 3
