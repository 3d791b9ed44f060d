Set r = New RegExp
WScript.Echo "[" & r.Pattern & "]", r.Global, r.IgnoreCase, r.Multiline '> [] False False False
