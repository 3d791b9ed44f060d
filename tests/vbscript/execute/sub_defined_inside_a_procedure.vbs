Sub S
  Execute "Sub Muestra(n) : WScript.Echo n : End Sub"
  Muestra 5
End Sub
S '> 5
