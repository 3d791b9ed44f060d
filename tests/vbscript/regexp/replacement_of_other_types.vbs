' A Boolean is written as its number, a number as its digits.
Set r = New RegExp
r.Pattern = "b"
WScript.Echo r.Replace("a b", True), r.Replace("a b", False), r.Replace("a b", 12), r.Replace("a b", -3) '> a -1 a 0 a 12 a -3
v = True
WScript.Echo r.Replace("a b", v), r.Replace("a b", 2 > 3), "[" & r.Replace("b", Empty) & "]" '> a -1 a 0 []
On Error Resume Next
x = r.Replace("a b", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = r.Replace("a b", Array(1)) : WScript.Echo Err.Number : Err.Clear '> 13
