Dim s
Function F(v)
  s = s & v
  F = v
End Function
Sub P(a, b, c)
End Sub
P F(1), F(2), F(3)
WScript.Echo s '> 123
