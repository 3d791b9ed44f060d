a = Array()
WScript.Echo UBound(a) '> -1
WScript.Echo IsArray(a) '> True
