Set r = New RegExp
r.Global = True
r.Pattern = "[[:a]"
WScript.Echo r.Replace("a:[b]", "") '> b]
r.Pattern = "[\w.-]"
WScript.Echo r.Replace("a-b.c, d", "") '> , |
r.Pattern = "[a-\d]"
WScript.Echo r.Replace("a-5b", "") '> b
