WScript.Echo UBound(Split("1x2X3", "x")) '> 1
WScript.Echo UBound(Split("1x2X3", "x", -1, vbTextCompare)) '> 2
