If "hola" Then '! 13
End If
