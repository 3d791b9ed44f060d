Class K
  Public n
  Public Function Mas(v)
    n = n + v
    Set Mas = Me
  End Function
End Class
WScript.Echo (New K).Mas(5).Mas(6).n '> 11
