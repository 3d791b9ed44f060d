WScript.Echo FormatNumber(-0.25, 1, vbTrue), FormatNumber(-0.25, 2, vbFalse) '> -0,3 -,25
