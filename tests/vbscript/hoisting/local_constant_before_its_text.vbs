Sub S
  WScript.Echo C
  Const C = 7
End Sub
S '> 7
