Set r = New RegExp
r.Pattern = "<.+?>"
WScript.Echo r.Execute("<a><b>")(0) '> <a>
r.Pattern = "<.+>"
WScript.Echo r.Execute("<a><b>")(0) '> <a><b>
