WScript.Echo CInt(2.5), CInt(3.5), CInt(-0.5), CInt(-1.5) '> 2 4 0 -2
WScript.Echo CInt(2.51), CInt("7"), CInt("2,5") '> 3 7 2
WScript.Echo CInt(True), CInt(Empty) '> -1 0
WScript.Echo TypeName(CInt(1.2)) '> Integer
