On Error Resume Next
Set o = CreateObject("No.Existe")
WScript.Echo Err.Number, TypeName(o) '> 429 Empty
