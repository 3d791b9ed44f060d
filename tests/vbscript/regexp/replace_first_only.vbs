Set r = New RegExp
r.Pattern = "a"
WScript.Echo r.Replace("banana", "o") '> bonana
