On Error Resume Next
Err.Raise vbObjectError + 513, "mío", "propio"
WScript.Echo Err.Number, Err.Number - vbObjectError, Err.Description '> -2147220991 513 propio
