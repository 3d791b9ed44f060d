Set r = New RegExp
r.Pattern = "b+"
Set m = r.Execute("aabbbc")(0)
WScript.Echo m.FirstIndex, m.Length, m.Value, m '> 2 3 bbb bbb
