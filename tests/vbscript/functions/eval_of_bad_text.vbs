On Error Resume Next
x = Eval("1 +")
WScript.Echo Err.Number > 1000 '> True
