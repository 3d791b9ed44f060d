Set r = New RegExp
r.Pattern = "a"
x = r.Test("b")
r.Pattern = "b"
WScript.Echo x, r.Test("b") '> False True
