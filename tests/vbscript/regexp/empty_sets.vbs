Set r = New RegExp
r.Pattern = "[]"
WScript.Echo r.Test("a") '> False
r.Pattern = "^[^]$"
WScript.Echo r.Test(vbLf) '> True
