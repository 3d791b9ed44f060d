WScript.Echo CDbl("") '! 13
