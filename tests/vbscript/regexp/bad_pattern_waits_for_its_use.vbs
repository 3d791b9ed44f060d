Set r = New RegExp
r.Pattern = "("
WScript.Echo r.Pattern '> (
x = r.Replace("a", "b") '! 5020
