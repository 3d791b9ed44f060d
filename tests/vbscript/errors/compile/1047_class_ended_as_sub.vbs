Class K
End Sub '! 1047
