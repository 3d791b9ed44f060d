On Error Resume Next
x = ChrB(300) : WScript.Echo Err.Number : Err.Clear '> 6
x = ChrB(256) : WScript.Echo Err.Number : Err.Clear '> 6
x = ChrB(-1) : WScript.Echo Err.Number : Err.Clear '> 6
x = ChrB(255.5) : WScript.Echo Err.Number : Err.Clear '> 6
x = ChrB("a") : WScript.Echo Err.Number : Err.Clear '> 13
x = ChrB(Null) : WScript.Echo Err.Number : Err.Clear '> 94
WScript.Echo LenB(ChrB(255)), LenB(ChrB(0)), AscB(ChrB(254.5)), AscB(ChrB(Empty)) '> 1 1 254 0
