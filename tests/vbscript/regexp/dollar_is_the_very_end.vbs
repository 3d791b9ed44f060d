Set r = New RegExp
r.Pattern = "a$"
WScript.Echo r.Test("a"), r.Test("a" & vbLf) '> True False
