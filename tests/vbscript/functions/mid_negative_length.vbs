WScript.Echo Mid("abc", 1, -1) '! 5
