WScript.Echo FormatNumber("1234,5", 1) '> 1.234,5
WScript.Echo FormatNumber("hola") '! 13
