Set r = New RegExp
r.Global = True
r.Pattern = "(\d)(x)?"
Set m = r.Execute("1 22x")
WScript.Echo m.Count, m(0), m.Item(2).Value, m(2).FirstIndex, m(2).Length, m(0).SubMatches.Count, m(2).SubMatches(1), TypeName(m(0).SubMatches(1)) '> 3 1 2x 3 2 2 x Empty
WScript.Echo TypeName(m), TypeName(m(0)), TypeName(m(0).SubMatches) '> IMatchCollection2 IMatch2 ISubMatches
For Each uno In m : WScript.Echo uno.FirstIndex, uno.Value : Next
'> 0 1
'> 2 2
'> 3 2x
On Error Resume Next
x = m.Item(3) : WScript.Echo Err.Number : Err.Clear '> 5
x = m(-1) : WScript.Echo Err.Number : Err.Clear '> 5
x = m(0).SubMatches(2) : WScript.Echo Err.Number : Err.Clear '> 5
x = m("a") : WScript.Echo Err.Number : Err.Clear '> 13
m(0).Value = 1 : WScript.Echo Err.Number : Err.Clear '> 438
r.Pattern = "x*"
WScript.Echo r.Execute("axb").Count, r.Replace("axb", "-") '> 4 -a--b-
