Const C = 1
Sub S()
  Const C = 2
  WScript.Echo C
End Sub
S '> 2
WScript.Echo C '> 1
