WScript.Echo CInt("12x") '! 13
