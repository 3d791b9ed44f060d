SetLocale 1033
WScript.Echo FormatNumber(1234567.891), FormatNumber(0.5, 1, vbFalse) '> 1,234,567.89 .5
WScript.Echo FormatNumber(-1234.5, 1, vbTrue, vbTrue) '> (1,234.5)
