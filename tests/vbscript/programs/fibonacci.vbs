Function Fib(n)
  If n < 2 Then Fib = n Else Fib = Fib(n - 1) + Fib(n - 2)
End Function
WScript.Echo Fib(20) '> 6765
a = 0 : b = 1
For i = 1 To 78
  t = a + b : a = b : b = t
  If i = 46 Or i = 70 Or i = 78 Then WScript.Echo a, TypeName(a)
Next
'> 1836311903 Long
'> 190392490709135 Double
'> 8,94439432379146E+15 Double
