Sub Texto(a)
  a = "ahora texto"
End Sub
x = 5
Texto x
WScript.Echo x, TypeName(x) '> ahora texto String
