Function F(n)
  F = n + 1
End Function
WScript.Echo Eval("F(F(1)) * Len(""abc"")") '> 9
