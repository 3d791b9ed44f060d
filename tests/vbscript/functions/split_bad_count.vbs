WScript.Echo UBound(Split("a,b", ",", 0)) '> -1
x = Split("a,b", ",", -2) '! 5
