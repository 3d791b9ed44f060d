Function Limpia(t)
  Dim r
  Set r = New RegExp
  r.Global = True
  r.IgnoreCase = True
  r.Pattern = "[^a-z]"
  Limpia = LCase(r.Replace(t, ""))
End Function
Function Capicua(t)
  Capicua = Limpia(t) = StrReverse(Limpia(t))
End Function
WScript.Echo Capicua("Dabale arroz a la zorra el abad"), Capicua("Hola") '> True False
