Set r = New RegExp
r.Pattern = ""
WScript.Echo r.Test("abc"), r.Test("") '> True True
