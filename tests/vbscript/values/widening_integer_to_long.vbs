a = 32767
b = a + 1
WScript.Echo b, TypeName(b) '> 32768 Long
WScript.Echo TypeName(a * 2), TypeName(-a - 2), TypeName(a - 1) '> Long Long Integer
