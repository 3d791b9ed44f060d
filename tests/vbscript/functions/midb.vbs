WScript.Echo MidB("abc", 3, 2) '> b
WScript.Echo LenB(MidB("abc", 2)) '> 5
