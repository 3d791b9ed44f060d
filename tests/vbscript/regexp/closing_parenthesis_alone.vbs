Set r = New RegExp
r.Pattern = "a)"
x = r.Test("a") '! 5017
