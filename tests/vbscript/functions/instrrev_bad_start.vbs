WScript.Echo InStrRev("abc", "", 2), InStrRev("", "") '> 2 0
x = InStrRev("abc", "a", 0) '! 5
