' \2 is a reference only if there are two groups, else an octal code.
Set r = New RegExp
r.Pattern = "^(a)\2$"
WScript.Echo r.Test("a" & Chr(2)), r.Test("aa") '> True False
r.Pattern = "^\101\x41\u0041$"
WScript.Echo r.Test("AAA") '> True
r.Pattern = "^(a)?\1b$"
WScript.Echo r.Test("b"), r.Test("aab") '> True True
