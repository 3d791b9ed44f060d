Sub S(n)
  Execute "n = n + 1"
End Sub
x = 4
S x
WScript.Echo x '> 5
