On Error Resume Next
x = Eval("&38") : WScript.Echo Err.Number : Err.Clear '> 1002
x = Eval("&O19") : WScript.Echo Err.Number : Err.Clear '> 1002
Execute "x = &78" : WScript.Echo Err.Number : Err.Clear '> 1002
WScript.Echo Eval("&37"), Eval("1 &38") '> 31 138
