' A logical operator takes Empty as the Long 0.
Dim e
WScript.Echo e And 5, e Or 5, e Xor 5 '> 0 5 5
WScript.Echo Not e, TypeName(Not e) '> -1 Long
WScript.Echo e Imp 0, e Eqv 0 '> -1 -1
WScript.Echo TypeName(e And 5), TypeName(5 Or e), TypeName(e Xor True), TypeName(False Eqv e) '> Long Long Long Long
WScript.Echo TypeName(e Imp CByte(1)), TypeName(CByte(1) And e), TypeName(e Or e) '> Long Long Long
WScript.Echo e And Null, TypeName(e And Null), TypeName(Null And e) '> 0 Long Long
WScript.Echo IsNull(e Or Null), IsNull(Null Xor e), IsNull(e Eqv Null), IsNull(Null Imp e) '> True True True True
WScript.Echo e Imp Null, TypeName(e Imp Null) '> -1 Long
