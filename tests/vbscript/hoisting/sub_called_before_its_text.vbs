Saluda '> hola
Sub Saluda
  WScript.Echo "hola"
End Sub
