Sub S(a, b, c)
  WScript.Echo VarType(a), VarType(b), VarType(c)
End Sub
S , 2, 3 '> 10 2 2
S 1, , 3 '> 2 10 2
