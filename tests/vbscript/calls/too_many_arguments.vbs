Sub S(a)
End Sub
S 1, 2 '! 450
