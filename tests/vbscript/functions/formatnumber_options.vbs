WScript.Echo FormatNumber(0.5, 2, vbFalse) '> ,50
WScript.Echo FormatNumber(0.5, 2, vbTrue) '> 0,50
WScript.Echo FormatNumber(-5, 0, vbTrue, vbTrue) '> (5)
WScript.Echo FormatNumber(-5, 0, vbTrue, vbFalse) '> -5
WScript.Echo FormatNumber(1234567.891, 1, vbTrue, vbFalse, vbFalse) '> 1234567,9
