On Error Resume Next
Set t = Nothing
v = Nothing : WScript.Echo Err.Number : Err.Clear '> 91
v = t : WScript.Echo Err.Number : Err.Clear '> 91
v = "x" & Nothing : WScript.Echo Err.Number : Err.Clear '> 91
v = CLng(t) : WScript.Echo Err.Number : Err.Clear '> 91
v = 1 + t : WScript.Echo Err.Number : Err.Clear '> 91
If t Then v = 1
WScript.Echo Err.Number, TypeName(v) : Err.Clear '> 91 Integer
v = t(1) : WScript.Echo Err.Number : Err.Clear '> 91
