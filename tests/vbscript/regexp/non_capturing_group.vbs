Set r = New RegExp
r.Pattern = "(?:ab)+(c)"
Set m = r.Execute("ababc")(0)
WScript.Echo m.Value, m.SubMatches.Count, m.SubMatches(0) '> ababc 1 c
