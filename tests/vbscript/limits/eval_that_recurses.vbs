Function F(n)
  If n = 0 Then F = 0 Else F = Eval("G(n - 1)") + 1
End Function
Function G(n)
  G = F(n)
End Function
WScript.Echo F(20) '> 20
