Sub P(t)
  WScript.Echo t
End Sub
P"hola" '> hola
