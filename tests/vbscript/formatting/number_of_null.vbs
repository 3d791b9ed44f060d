WScript.Echo FormatNumber(Null) '! 13
