WScript.Echo "1" + "2" '> 12
WScript.Echo "1" + 2, TypeName("1" + 2) '> 3 Double
WScript.Echo 1 + "2" '> 3
