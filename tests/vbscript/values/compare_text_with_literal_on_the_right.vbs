On Error Resume Next
x = 1 : x = (3 < "dos") : WScript.Echo Err.Number, x '> 13 1
Err.Clear : x = ("" = 0) : WScript.Echo Err.Number '> 13
Err.Clear : x = ("dos" <> 2.5) : WScript.Echo Err.Number '> 13
Err.Clear : x = (&H10 = "16") : WScript.Echo Err.Number, x '> 0 True
