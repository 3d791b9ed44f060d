' It gets the match, its groups, its place and the whole text.
Function Doble(encontrado, numero, lugar, texto)
  Doble = numero * 2 & "@" & lugar
End Function
Set r = New RegExp
r.Global = True
r.Pattern = "<(\d+)>"
WScript.Echo r.Replace("a<4>b<21>", GetRef("Doble")) '> a8@1b42@5
