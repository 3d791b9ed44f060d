Set r = New RegExp
r.Pattern = "(\w)\1"
WScript.Echo r.Test("hello"), r.Test("helo") '> True False
