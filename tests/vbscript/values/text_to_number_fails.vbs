On Error Resume Next
x = "" + 1 : WScript.Echo Err.Number : Err.Clear '> 13
x = "1 2x" * 1 : WScript.Echo Err.Number : Err.Clear '> 13
x = "1,2,3" * 1 : WScript.Echo Err.Number '> 13
