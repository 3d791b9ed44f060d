Class C
  Public A, B
  Public Function Suma(n)
    Suma = A + B + n
  End Function
End Class
Set o = New C
With o
  .A = 1
  .B = .A + 1
  WScript.Echo .Suma(10) '> 13
End With
