WScript.Echo Atn(0) '> 0
WScript.Echo Atn(1) * 4 '> 3,14159265358979
WScript.Echo TypeName(Atn(0)) '> Double
