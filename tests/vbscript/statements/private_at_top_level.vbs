Private x
Private Sub S()
  WScript.Echo x
End Sub
x = 4
S '> 4
