WScript.Echo Len("hola"), Len(""), Len(Empty), Len(12345) '> 4 0 0 5
WScript.Echo Len("ñ€") '> 2
WScript.Echo IsNull(Len(Null)) '> True
