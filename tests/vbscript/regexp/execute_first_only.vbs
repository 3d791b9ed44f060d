Set r = New RegExp
r.Pattern = "\d+"
Set m = r.Execute("a1b22c333")
WScript.Echo m.Count, m(0).Value '> 1 1
