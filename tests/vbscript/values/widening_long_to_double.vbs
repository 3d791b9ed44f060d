a = 2147483647
WScript.Echo a + 1, TypeName(a + 1) '> 2147483648 Double
WScript.Echo a * 2, -a - 2, TypeName(-a - 1) '> 4294967294 -2147483649 Long
