Set r = New RegExp
r.Pattern = "x*"
r.Global = True
WScript.Echo r.Replace("ab", "-") '> -a-b-
