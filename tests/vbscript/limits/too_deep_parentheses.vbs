On Error Resume Next
Execute "x = " & String(200000, "(") & "1" & String(200000, ")")
WScript.Echo Err.Number > 1000 '> True
