Sub F(v)
  WScript.Echo v
End Sub
F -5 '> -5
F -5 + 3 '> -2
x = 4
F - x '> -4
