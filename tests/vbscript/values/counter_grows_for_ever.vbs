n = CInt(1)
For i = 1 To 40
  n = n * 2
Next
WScript.Echo n, TypeName(n) '> 1099511627776 Double
