Sub S(n As Long) '! 1006
End Sub
