On Error Resume Next
Err.Raise 1001, "origen", "descripción"
Err.Raise 1002
WScript.Echo Err.Number, Err.Source, Err.Description '> 1002 origen descripción
