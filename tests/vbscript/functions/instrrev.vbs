WScript.Echo InStrRev("abcabc", "b") '> 5
WScript.Echo InStrRev("abcabc", "b", 4) '> 2
WScript.Echo InStrRev("abc", "z"), InStrRev("", "a") '> 0 0
WScript.Echo InStrRev("ABC", "b", -1, vbTextCompare) '> 2
WScript.Echo InStrRev("C:\datos\fichero.txt", "\") '> 9
