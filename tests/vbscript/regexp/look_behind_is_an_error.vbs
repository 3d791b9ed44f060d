Set r = New RegExp
r.Pattern = "(?<=a)b"
x = r.Test("ab") '! 5017
