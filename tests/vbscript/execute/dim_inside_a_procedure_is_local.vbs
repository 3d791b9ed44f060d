Sub S
  Execute "Dim nueva : nueva = 5"
  WScript.Echo nueva
End Sub
S '> 5
WScript.Echo TypeName(nueva) '> Empty
