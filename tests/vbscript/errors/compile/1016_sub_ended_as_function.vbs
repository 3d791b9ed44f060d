Sub S
End Function '! 1016
