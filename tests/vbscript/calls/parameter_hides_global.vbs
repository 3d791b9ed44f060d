x = "global"
Sub S(x)
  x = x & "!"
  WScript.Echo x
End Sub
S "parámetro" '> parámetro!
WScript.Echo x '> global
