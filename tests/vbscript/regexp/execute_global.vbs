Set r = New RegExp
r.Pattern = "\d+"
r.Global = True
Set m = r.Execute("a1b22c333")
WScript.Echo m.Count, m(0), m(1), m.Item(2) '> 3 1 22 333
