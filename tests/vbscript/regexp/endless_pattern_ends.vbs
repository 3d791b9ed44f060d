' A pattern that tries for ever ends in an error.
Set r = New RegExp
r.Pattern = "(a+)+$"
x = r.Test(String(40, "a") & "b") '! 28
