WScript.Echo LeftB("abc", 2) '> a
WScript.Echo LenB(LeftB("abc", 3)) '> 3
