On Error Resume Next
x = FormatNumber(Null)
WScript.Echo Err.Number <> 0 '> True
