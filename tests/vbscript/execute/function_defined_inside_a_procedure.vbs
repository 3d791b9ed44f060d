Sub S
  Execute "Function Siete : Siete = 7 : End Function"
  WScript.Echo Siete(), Siete
End Sub
S '> 7 7
