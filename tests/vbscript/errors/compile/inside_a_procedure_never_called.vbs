Sub NuncaLlamada
  x = (1 '! 1006
End Sub
