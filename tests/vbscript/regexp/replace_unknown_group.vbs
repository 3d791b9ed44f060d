Set r = New RegExp
r.Pattern = "(a)(b)?"
WScript.Echo r.Replace("xay", "[$1$2$3$0$]") '> x[a$3$0$]y
r.Pattern = "b"
WScript.Echo r.Replace("abc", "[$`|$'|$&]") '> a[a|c|b]c
