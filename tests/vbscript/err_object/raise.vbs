On Error Resume Next
Err.Raise 1000, "origen", "descripción"
WScript.Echo Err.Number, Err.Source, Err.Description '> 1000 origen descripción
