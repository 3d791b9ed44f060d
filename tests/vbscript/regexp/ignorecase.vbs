Set r = New RegExp
r.Pattern = "hola"
WScript.Echo r.Test("HOLA") '> False
r.IgnoreCase = True
WScript.Echo r.Test("HOLA") '> True
