Set r = New RegExp
r.Pattern = "[z-a]"
x = r.Test("a") '! 5021
