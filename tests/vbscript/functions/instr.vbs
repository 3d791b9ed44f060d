WScript.Echo InStr("abcabc", "c") '> 3
WScript.Echo InStr(4, "abcabc", "c") '> 6
WScript.Echo InStr("abc", "z"), InStr("", "a") '> 0 0
WScript.Echo InStr(10, "abc", "a") '> 0
WScript.Echo InStr("abc", ""), InStr(2, "abc", "") '> 1 2
