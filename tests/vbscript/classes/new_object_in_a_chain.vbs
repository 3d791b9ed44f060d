Class K
  Public n
  Public Function Mas(v)
    n = n + v
    Set Mas = Me
  End Function
End Class
x = (New K).Mas(5).Mas(6).n
WScript.Echo x, (New K).Mas(1).n '> 11 1
