' While Err is not cleared, what Raise leaves out keeps what Err holds.
On Error Resume Next
Err.Raise 7, "origen", "texto", "ayuda", 42
Err.Raise 8
WScript.Echo Err.Number, Err.Source, Err.Description, Err.HelpFile, Err.HelpContext '> 8 origen texto ayuda 42
Err.Raise 9, , "otro"
WScript.Echo Err.Number, Err.Source, Err.Description, Err.HelpFile, Err.HelpContext '> 9 origen otro ayuda 42
Err.Clear
WScript.Echo Err.Number, "[" & Err.Source & Err.Description & Err.HelpFile & "]", Err.HelpContext '> 0 [] 0
Err.Raise 11
WScript.Echo Err.Number, Err.Description, "[" & Err.HelpFile & "]", Err.HelpContext '> 11 División por cero [] 0
Err.Clear
Err.Raise 7, "s", "d", "h", 42
Err.Clear
Err.Raise 8
WScript.Echo Err.HelpContext, "[" & Err.HelpFile & "]" '> 0 []
