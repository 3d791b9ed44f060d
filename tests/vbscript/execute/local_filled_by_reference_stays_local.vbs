Sub Llena(v)
  v = "lleno"
End Sub
Sub P
  Llena x
  WScript.Echo x '> lleno
End Sub
P
WScript.Echo TypeName(x) '> Empty
