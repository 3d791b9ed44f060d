Set r = New RegExp
r.Pattern = "^a{,3}{$"
WScript.Echo r.Test("a{,3}{") '> True
