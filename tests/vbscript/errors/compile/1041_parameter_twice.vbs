Sub S(a, b, a) '! 1041
End Sub
