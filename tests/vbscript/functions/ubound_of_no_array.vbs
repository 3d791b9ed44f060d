x = 5
WScript.Echo UBound(x) '! 13
