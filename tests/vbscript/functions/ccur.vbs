WScript.Echo CCur(1.23456) '> 1,2346
WScript.Echo CCur("12,5") '> 12,5
WScript.Echo TypeName(CCur(1)) '> Currency
