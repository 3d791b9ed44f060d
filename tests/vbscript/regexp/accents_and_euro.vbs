Set r = New RegExp
r.Pattern = "ñ.€"
Set m = r.Execute("año ñu€")
WScript.Echo m(0).FirstIndex, m(0).Length '> 4 3
