On Error Resume Next
Set p = LoadPicture("no-existe.bmp")
WScript.Echo Err.Number <> 0 '> True
