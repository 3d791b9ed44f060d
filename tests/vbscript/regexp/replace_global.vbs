Set r = New RegExp
r.Pattern = "a"
r.Global = True
WScript.Echo r.Replace("banana", "o"), r.Replace("pino", "x") '> bonono pino
