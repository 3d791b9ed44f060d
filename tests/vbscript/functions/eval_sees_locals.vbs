Function F(n)
  Dim doble
  doble = n * 2
  F = Eval("doble + n")
End Function
WScript.Echo F(5) '> 15
