WScript.Echo Cos(0) '> 1
WScript.Echo Cos(1) '> 0,54030230586814
WScript.Echo Round(Cos(Atn(1) * 4), 10) '> -1
