WScript.Echo Round(2.5), Round(3.5), Round(-2.5), Round(0.5) '> 2 4 -2 0
WScript.Echo Round(3.14159, 2), Round(2.7), Round(7) '> 3,14 3 7
WScript.Echo Round(0.125, 2), Round(0.375, 2) '> 0,12 0,38
WScript.Echo Round("2,6") '> 3
