On Error Resume Next
Err.Raise 13
n = Err.Description
Err.Clear
x = CInt("abc")
WScript.Echo Err.Number, Err.Description = n '> 13 True
