Dim r
Function Cambia(m, lugar, texto)
  r.Pattern = "z"
  r.Global = False
  Cambia = UCase(m)
End Function
Set r = New RegExp
r.Pattern = "[ab]"
r.Global = True
WScript.Echo r.Replace("abz", GetRef("Cambia")), r.Pattern '> ABz z
