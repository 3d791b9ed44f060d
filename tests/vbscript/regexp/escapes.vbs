Set r = New RegExp
r.Pattern = "\t\x41\u0042\."
WScript.Echo r.Test(vbTab & "AB."), r.Test(vbTab & "ABx") '> True False
