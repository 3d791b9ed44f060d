Sub S(a, b)
End Sub
S 1 '! 450
