On Error Resume Next
Err.Raise 2001, "origen", "descripción"
Err.Raise 2002
WScript.Echo Err.Number, Err.Source, Err.Description '> 2002 origen descripción
