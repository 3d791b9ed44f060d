Set r = New RegExp
r.Pattern = "^b$"
t = "a" & vbLf & "b" & vbLf & "c"
WScript.Echo r.Test(t) '> False
r.Multiline = True
WScript.Echo r.Test(t) '> True
