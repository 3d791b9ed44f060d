' Null numbers first, then the numbers, then the text.
On Error Resume Next
x = Mid("ruta", "x", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Mid("ruta", 0, Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Mid("ruta", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Mid("ruta", Null, -1) : WScript.Echo Err.Number : Err.Clear '> 94
x = Mid(Null, "x") : WScript.Echo Err.Number : Err.Clear '> 13
x = Mid("ruta", 0, "x") : WScript.Echo Err.Number : Err.Clear '> 13
x = Mid(Null, -2, -2) : WScript.Echo Err.Number : Err.Clear '> 5
x = Mid(Null, 0) : WScript.Echo Err.Number : Err.Clear '> 5
x = Mid("ruta", 1, -1) : WScript.Echo Err.Number : Err.Clear '> 5
x = Mid("ruta", 0, 1) : WScript.Echo Err.Number : Err.Clear '> 5
x = Mid("ruta", 3000000000) : WScript.Echo Err.Number : Err.Clear '> 6
x = Mid(Array(1), 1) : WScript.Echo Err.Number : Err.Clear '> 13
x = MidB("ruta", "x", Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = MidB(Null, -2, -2) : WScript.Echo Err.Number : Err.Clear '> 5
x = MidB("ruta", 1, -1) : WScript.Echo Err.Number : Err.Clear '> 5
x = MidB("ruta", 0) : WScript.Echo Err.Number : Err.Clear '> 5
WScript.Echo IsNull(Mid(Null, 4, 1)), IsNull(Mid(Null, 4)), IsNull(MidB(Null, 1, 1)) '> True True True
WScript.Echo Mid("ruta", 2.5, 1.5), Mid("ruta", "3"), Mid("ruta", 4, 9), "[" & Mid("ruta", 5) & "]", "[" & Mid("ruta", 2, 0) & "]" '> ut ta a [] []
WScript.Echo Mid("ruta", 2, 2147483647), Mid(12345, 2, 3), Mid(True, 2), "[" & Mid(Empty, 1) & "]" '> uta 234 rue []
WScript.Echo MidB("ruta", 3, 4), LenB(MidB("ruta", 2, 3)), MidB("ruta", 5), "[" & MidB("ruta", 9) & "]" '> ut 3 ta []
