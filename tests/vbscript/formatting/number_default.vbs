WScript.Echo FormatNumber(0), FormatNumber(-1.5), FormatNumber(1000) '> 0,00 -1,50 1.000,00
