WScript.Echo FormatNumber(999.996, 2), FormatNumber(0.999, 2), FormatNumber(9.5, 0) '> 1.000,00 1,00 10
