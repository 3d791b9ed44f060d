Dim e
WScript.Echo e And 5, e Or 5, e Xor 5 '> 0 5 5
WScript.Echo Not e, TypeName(Not e) '> -1 Integer
WScript.Echo e Imp 0, e Eqv 0 '> -1 -1
