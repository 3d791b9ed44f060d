On Error Resume Next
Sub S : WScript.Echo "s" : End Sub
Set r = GetRef(True) : WScript.Echo Err.Number : Err.Clear '> 13
Set r = GetRef(5) : WScript.Echo Err.Number : Err.Clear '> 13
Set r = GetRef(Null) : WScript.Echo Err.Number : Err.Clear '> 13
Set r = GetRef(Empty) : WScript.Echo Err.Number : Err.Clear '> 13
Set r = GetRef("nadie") : WScript.Echo Err.Number : Err.Clear '> 5
Set r = GetRef("") : WScript.Echo Err.Number : Err.Clear '> 5
GetRef "S" : WScript.Echo Err.Number '> 0
Call GetRef("S") : WScript.Echo Err.Number '> 0
Set r = GetRef("s")
r '> s
WScript.Echo Err.Number '> 0
