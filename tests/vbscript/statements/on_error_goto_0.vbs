On Error Resume Next
x = 1 / 0
WScript.Echo Err.Number '> 11
On Error GoTo 0
WScript.Echo Err.Number '> 0
x = 1 / 0 '! 11
