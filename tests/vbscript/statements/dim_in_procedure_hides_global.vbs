x = "global"
Sub S()
  Dim x
  x = "local"
  WScript.Echo x
End Sub
S '> local
WScript.Echo x '> global
