With mw
  x = .leer(1, 0)
  .escribir 1, 0, 3
  .escribir 1, 1, .leer(1, 0) * 2
  WScript.Echo .leer(1, 1) '> 6
End With
