x = "global"
Sub S
  Dim x
  x = "local"
  ExecuteGlobal "x = ""cambiada"""
  WScript.Echo x
End Sub
S '> local
WScript.Echo x '> cambiada
