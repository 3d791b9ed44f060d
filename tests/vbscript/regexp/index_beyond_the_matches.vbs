Set r = New RegExp
r.Pattern = "a"
Set m = r.Execute("a")
On Error Resume Next
x = m(5).Value
WScript.Echo Err.Number <> 0 '> True
