WScript.Echo String(3, "*"), String(3, "ab"), String(2, 65) '> *** aaa AA
WScript.Echo Len(String(0, "x")), Len(String(500, "x")) '> 0 500
