WScript.Echo True + True, TypeName(True + True) '> -2 Integer
WScript.Echo True * 5, False + 1 '> -5 1
