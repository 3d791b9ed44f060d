Sub S()
  ExecuteGlobal "creada = 3"
End Sub
S
WScript.Echo creada '> 3
