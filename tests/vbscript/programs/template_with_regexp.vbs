Function Rellena(t, valores)
  Dim r, m
  Set r = New RegExp
  r.Pattern = "\{(\w+)\}"
  r.Global = True
  Rellena = t
  For Each m In r.Execute(t)
    If valores.Exists(m.SubMatches(0)) Then Rellena = Replace(Rellena, m.Value, valores(m.SubMatches(0)))
  Next
End Function
Set v = CreateObject("Scripting.Dictionary")
v("nombre") = "Ana"
v("n") = 3
WScript.Echo Rellena("Hola {nombre}: {n} avisos, {otro}", v) '> Hola Ana: 3 avisos, {otro}
