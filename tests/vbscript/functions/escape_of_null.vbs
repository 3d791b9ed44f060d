On Error Resume Next
x = Escape(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Unescape(Null) : WScript.Echo Err.Number : Err.Clear '> 94
WScript.Echo "[" & Escape(Empty) & Unescape("") & "]", Escape(-1.5), Unescape(12) '> [] -1%2C5 12
