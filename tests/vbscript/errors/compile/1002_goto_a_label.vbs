On Error GoTo Etiqueta '! 1002
