Class C
  Sub S(ByVal a, b)
    x = 9
    WScript.Echo a
  End Sub
  Sub T(a, ByVal b, c)
    x = 8
    WScript.Echo a, b, c
  End Sub
End Class
Dim x
Set o = New C
x = 1
o.S x, 0 '> 1
x = 1
o.T x, x, x '> 8 1 8
