WScript.Echo InStrRev("abc", "a", 9) '> 0
