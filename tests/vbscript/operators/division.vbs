WScript.Echo 7 / 2, 6 / 3, TypeName(6 / 3) '> 3,5 2 Double
