Sub Hondo
  x = 1 / 0
  WScript.Echo "nunca"
End Sub
Sub Medio
  On Error Resume Next
  Hondo
  WScript.Echo "medio sigue", Err.Number
End Sub
Medio '> medio sigue 11
