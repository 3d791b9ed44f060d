Dim a, b(2), c()
WScript.Echo TypeName(a), UBound(b), IsArray(c) '> Empty 2 True
