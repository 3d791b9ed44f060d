Class K
  Public n
  Public Function Mas(v)
    n = n + v
    Set Mas = Me
  End Function
End Class
Set o = New K
WScript.Echo o.Mas(1).Mas(2).Mas(3).n '> 6
o.Mas(4).Mas 5
WScript.Echo o.n '> 15
