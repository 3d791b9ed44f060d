a = Filter(Array("a", "b"), "z")
WScript.Echo UBound(a), IsArray(a) '> -1 True
