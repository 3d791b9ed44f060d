WScript.Echo CDbl("1,5") * 2 '> 3
WScript.Echo CDbl("1e3"), CDbl("&HFF") '> 1000 255
WScript.Echo CDbl(" 42 ") '> 42
WScript.Echo CDbl(True), CDbl(Empty) '> -1 0
WScript.Echo TypeName(CDbl(1)) '> Double
