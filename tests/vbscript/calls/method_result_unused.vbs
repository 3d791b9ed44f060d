Set r = New RegExp
r.Pattern = "a"
r.Test "abc"
r.Test("abc")
WScript.Echo "fin" '> fin
