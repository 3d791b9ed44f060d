With o
End If '! 1029
