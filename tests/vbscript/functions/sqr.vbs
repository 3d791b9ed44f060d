WScript.Echo Sqr(9), Sqr(0), Sqr("16") '> 3 0 4
WScript.Echo Sqr(2) '> 1,4142135623731
