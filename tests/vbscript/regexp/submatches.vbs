Set r = New RegExp
r.Pattern = "(\w+)@(\w+)\.com"
Set m = r.Execute("correo: ana@casa.com")(0)
WScript.Echo m.SubMatches.Count, m.SubMatches(0), m.SubMatches(1) '> 2 ana casa
