Sub S(a, b)
End Sub
S(1, 2) '! 1044
