Set r = New RegExp
r.Pattern = "(a)"
Set m = r.Execute("a")
WScript.Echo TypeName(r), TypeName(m), TypeName(m(0)), TypeName(m(0).SubMatches) '> IRegExp2 IMatchCollection2 IMatch2 ISubMatches
