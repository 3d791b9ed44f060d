Function F(a, b)
End Function
x = F(1) '! 450
