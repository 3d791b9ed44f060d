Sub S
End Sub
S = 5 '! 501
