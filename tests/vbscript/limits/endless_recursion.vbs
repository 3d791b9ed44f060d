Function F(n)
  F = F(n + 1) '! 28
End Function
x = F(0)
