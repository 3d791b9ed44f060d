On Error Resume Next
Err.Raise 11
texto = Err.Description
Err.Clear
x = 1 / 0
WScript.Echo Err.Number, Len(texto) > 0, Err.Description = texto '> 11 True True
