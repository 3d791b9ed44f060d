a = Array(1)
WScript.Echo a = 1 '! 13
