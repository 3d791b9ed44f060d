Sub S()
  Dim n
  n = n + 1
  WScript.Echo n
End Sub
S '> 1
S '> 1
