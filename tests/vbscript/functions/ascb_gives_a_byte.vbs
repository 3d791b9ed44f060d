WScript.Echo TypeName(AscB("Z")), AscB("Z"), TypeName(Asc("Z")), TypeName(AscW("Z")) '> Byte 90 Integer Integer
On Error Resume Next
x = AscB("") : WScript.Echo Err.Number : Err.Clear '> 5
x = AscB(Null) : WScript.Echo Err.Number '> 94
