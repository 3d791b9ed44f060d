On Error Resume Next
x = 1 / 0
WScript.Echo Err.Number, Len(Err.Description) > 0, Len(Err.Source) > 0 '> 11 True True
