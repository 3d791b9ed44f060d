' The count is checked before a Null is let through.
On Error Resume Next
x = String(-1, Null) : WScript.Echo Err.Number : Err.Clear '> 5
x = String("x", Null) : WScript.Echo Err.Number : Err.Clear '> 13
x = String(2, "") : WScript.Echo Err.Number : Err.Clear '> 5
x = Space(-1) : WScript.Echo Err.Number : Err.Clear '> 5
x = Space(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Space("x") : WScript.Echo Err.Number : Err.Clear '> 13
WScript.Echo IsNull(String(3, Null)), IsNull(String(Null, "a")) '> True True
WScript.Echo String(2.5, "ab"), String("3", 65), String(2, 256 + 66), "[" & Space(1.5) & "]", "[" & Space(0) & String(0, "a") & "]" '> aa AAA BB [  ] []
