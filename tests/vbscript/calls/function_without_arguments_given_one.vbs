Function F()
End Function
x = F(1) '! 450
