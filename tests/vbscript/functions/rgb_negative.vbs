WScript.Echo RGB(-1, 0, 0) '! 5
