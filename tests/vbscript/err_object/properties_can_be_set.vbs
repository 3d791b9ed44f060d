Err.Number = 5
Err.Description = "puesta"
Err.Source = "aquí"
WScript.Echo Err.Number, Err.Description, Err.Source '> 5 puesta aquí
Err.Clear
