Sub F(a, b)
  WScript.Echo a, b
End Sub
x = 3
F x = 3, x > 5 '> True False
