On Error Resume Next
s = String(2000000000, "x")
WScript.Echo Err.Number = 7 Or Err.Number = 14, Len(s) '> True 0
