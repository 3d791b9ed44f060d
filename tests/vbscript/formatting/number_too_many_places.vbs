WScript.Echo Len(FormatNumber(1, 255)) '> 257
x = FormatNumber(1, 256) '! 5
