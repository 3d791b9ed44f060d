On Error Resume Next
Err.Raise 1000, "o", "d", "ayuda.hlp", 77
WScript.Echo Err.HelpFile, Err.HelpContext '> ayuda.hlp 77
