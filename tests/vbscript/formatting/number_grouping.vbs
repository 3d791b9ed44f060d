WScript.Echo FormatNumber(999, 0), FormatNumber(1000, 0), FormatNumber(1234567890, 0) '> 999 1.000 1.234.567.890
WScript.Echo FormatNumber(-123456, 0), FormatNumber(1000000, 0, , , False) '> -123.456 1000000
