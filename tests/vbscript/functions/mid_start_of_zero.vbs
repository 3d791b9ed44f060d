WScript.Echo Mid("abc", 0, 1) '! 5
