On Error Resume Next
x = 1 / 0
WScript.Echo "sigue", Err.Number '> sigue 11
