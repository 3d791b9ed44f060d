Sub Fin
  WScript.Quit
End Sub
WScript.Echo "antes" '> antes
Fin
WScript.Echo "nunca"
