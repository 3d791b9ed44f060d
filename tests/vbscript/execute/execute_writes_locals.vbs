x = "global"
Sub S
  Dim x
  x = "local"
  Execute "x = ""cambiada"""
  WScript.Echo x
End Sub
S '> cambiada
WScript.Echo x '> global
