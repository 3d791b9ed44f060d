Set r = New RegExp
r.Pattern = "x"
WScript.Echo r.Replace("x", "$$5") '> $5
