Sub Saluda(nombre)
  WScript.Echo "hola " & nombre
End Sub
Saluda "Ana" '> hola Ana
