Dim nada
WScript.Echo VarType(nada), VarType(Null), VarType(1), VarType(100000) '> 0 1 2 3
WScript.Echo VarType(CSng(1)), VarType(1.5), VarType(CCur(1)), VarType(#1/1/2020#), VarType("x") '> 4 5 6 7 8
WScript.Echo VarType(Nothing), VarType(True), VarType(CByte(1)), VarType(Array()) '> 9 11 17 8204
