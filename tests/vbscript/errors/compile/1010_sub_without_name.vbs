Sub '! 1010
End Sub
