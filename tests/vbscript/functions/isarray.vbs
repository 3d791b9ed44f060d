Dim fija(3), dinamica()
WScript.Echo IsArray(fija), IsArray(dinamica), IsArray(Array()) '> True True True
WScript.Echo IsArray("abc"), IsArray(Empty) '> False False
