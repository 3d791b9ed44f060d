WScript.Echo FormatNumber(1234567.891) '> 1.234.567,89
WScript.Echo FormatNumber(1234.5, 0), FormatNumber(5, 3) '> 1.235 5,000
WScript.Echo FormatNumber("12,3", 2) '> 12,30
WScript.Echo TypeName(FormatNumber(1)) '> String
