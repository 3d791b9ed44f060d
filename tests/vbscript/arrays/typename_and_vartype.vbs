Dim f(1), d()
WScript.Echo TypeName(f), TypeName(d), VarType(f), VarType(d) '> Variant() Variant() 8204 8204
