WScript.Echo InStr(12345, 34) '> 3
