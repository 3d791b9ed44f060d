On Error Resume Next
x = InStrRev(Null, "a") : WScript.Echo Err.Number : Err.Clear '> 94
x = InStrRev("a", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = InStrRev("a", "a", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = InStrRev("a", "a", 1, Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = InStrRev(Null, "a", 0) : WScript.Echo Err.Number : Err.Clear '> 94
x = InStrRev(Null, "a", "x") : WScript.Echo Err.Number : Err.Clear '> 94
x = InStrRev("a", "a", 1, 2) : WScript.Echo Err.Number : Err.Clear '> 5
x = InStrRev("a", "a", -2) : WScript.Echo Err.Number : Err.Clear '> 5
' InStr gives Null for Null texts once its numbers are in order.
WScript.Echo IsNull(InStr(Null, "a")), IsNull(InStr("a", Null)), IsNull(InStr(1, Null, "a", 1)) '> True True True
x = InStr(0, Null, "a") : WScript.Echo Err.Number : Err.Clear '> 5
x = InStr(Null, "a", "a") : WScript.Echo Err.Number : Err.Clear '> 94
x = InStr(1, Null, "a", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = InStr(1, Null, "a", 3) : WScript.Echo Err.Number : Err.Clear '> 5
x = InStr("x", Null, "a") : WScript.Echo Err.Number : Err.Clear '> 13
x = InStrB(0, Null, "a") : WScript.Echo Err.Number : Err.Clear '> 5
WScript.Echo IsNull(InStrB(Null, "a")), InStrRev("abab", "b"), InStrRev("abab", "b", 3), InStrRev("abab", "B", -1, 1) '> True 4 2 4
