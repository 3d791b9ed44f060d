On Error Resume Next
x = CInt(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = CStr(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = CBool(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = CDbl(Null) : WScript.Echo Err.Number '> 94
