On Error Resume Next
t = String(200000, "-") & "1"
x = Eval(t)
WScript.Echo Err.Number = 0 Or Err.Number > 1000 '> True
