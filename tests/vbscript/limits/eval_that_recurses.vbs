Function F(n)
  If n = 0 Then F = 0 Else F = Eval("F(n - 1)") + 1
End Function
WScript.Echo F(20) '> 20
