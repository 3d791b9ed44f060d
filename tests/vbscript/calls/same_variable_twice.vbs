Sub S(a, b)
  a = 1
  b = b + 10
End Sub
x = 5
S x, x
WScript.Echo x '> 11
