Function F
End Sub '! 1015
