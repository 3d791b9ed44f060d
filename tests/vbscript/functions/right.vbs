WScript.Echo Right("abcdef", 3), Right("abc", 10) '> def abc
WScript.Echo "[" & Right("abc", 0) & "]" '> []
WScript.Echo IsNull(Right(Null, 2)) '> True
