Sub S()
  sinDeclarar = 5
End Sub
S
WScript.Echo TypeName(sinDeclarar) '> Empty
