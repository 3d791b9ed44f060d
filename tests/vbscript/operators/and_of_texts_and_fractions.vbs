WScript.Echo "12" And 10, 12.4 And 10 '> 8 8
WScript.Echo TypeName(12.4 And 10) '> Long
