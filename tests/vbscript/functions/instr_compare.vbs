WScript.Echo InStr("ABC", "b") '> 0
WScript.Echo InStr(1, "ABC", "b", vbTextCompare) '> 2
WScript.Echo InStr(1, "ABC", "b", vbBinaryCompare) '> 0
WScript.Echo InStr(1, "ÑANDÚ", "ú", 1) '> 5
