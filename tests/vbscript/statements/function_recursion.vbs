Function Factorial(n)
  If n <= 1 Then
    Factorial = 1
  Else
    Factorial = n * Factorial(n - 1)
  End If
End Function
WScript.Echo Factorial(10), Factorial(20) '> 3628800 2,43290200817664E+18
