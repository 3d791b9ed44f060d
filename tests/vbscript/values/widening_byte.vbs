a = CByte(200) : b = CByte(100)
WScript.Echo a + b, TypeName(a + b) '> 300 Integer
WScript.Echo a * b, TypeName(b - a), b - a '> 20000 Integer -100
WScript.Echo TypeName(CByte(1) + CByte(2)), TypeName(a + 1) '> Byte Integer
