ExecuteGlobal "Function F(n) : F = n * 3 : End Function"
WScript.Echo F(4) '> 12
