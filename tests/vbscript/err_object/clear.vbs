On Error Resume Next
x = 1 / 0
Err.Clear
WScript.Echo Err.Number, Len(Err.Description), Len(Err.Source) '> 0 0 0
