WScript.Echo Left("abcdef", 3), Left("abc", 10) '> abc abc
WScript.Echo "[" & Left("abc", 0) & "]" '> []
WScript.Echo Left(12345, 2) '> 12
WScript.Echo IsNull(Left(Null, 2)) '> True
