On Error Resume Next
mw.escribir 1, 5
WScript.Echo Err.Number <> 0 '> True
