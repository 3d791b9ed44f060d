WScript.Echo RightB("abc", 2) '> c
WScript.Echo LenB(RightB("abc", 3)) '> 3
