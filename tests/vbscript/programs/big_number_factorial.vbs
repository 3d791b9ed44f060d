' Digits in an array, lowest first.
Function Factorial(n)
  Dim d(), i, k, carry
  ReDim d(0) : d(0) = 1
  For i = 2 To n
    carry = 0
    For k = 0 To UBound(d)
      carry = d(k) * i + carry
      d(k) = carry Mod 10
      carry = carry \ 10
    Next
    Do While carry > 0
      ReDim Preserve d(UBound(d) + 1)
      d(UBound(d)) = carry Mod 10
      carry = carry \ 10
    Loop
  Next
  For k = UBound(d) To 0 Step -1 : Factorial = Factorial & d(k) : Next
End Function
WScript.Echo Factorial(30) '> 265252859812191058636308480000000
WScript.Echo Len(Factorial(100)) '> 158
