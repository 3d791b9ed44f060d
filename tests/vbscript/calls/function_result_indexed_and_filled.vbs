Function F()
  F = Array(1, 2, 3)
  F(0) = 9
End Function
WScript.Echo F()(0), F()(1) '> 9 2
