Set r = New RegExp
r.Multiline = True
r.Pattern = "^b"
WScript.Echo r.Test("a" & vbCr & "b"), r.Test("a" & vbLf & "b"), r.Test("a" & vbCrLf & "b"), r.Test("ab") '> True True True False
r.Pattern = "a$"
WScript.Echo r.Test("a" & vbCr & "b"), r.Test("a" & vbLf & "b"), r.Test("ab"), r.Test("a") '> True True False True
r.Multiline = False
r.Pattern = "^b"
WScript.Echo r.Test("a" & vbLf & "b"), r.Test("b") '> False True
r.Pattern = "a$"
WScript.Echo r.Test("a" & vbLf), r.Test("a") '> False True
