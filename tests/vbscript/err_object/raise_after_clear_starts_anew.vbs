On Error Resume Next
Err.Raise 1001, "origen", "descripción"
Err.Clear
Err.Raise 1002, "otro"
WScript.Echo Err.Source, Err.Description = "descripción" '> otro False
