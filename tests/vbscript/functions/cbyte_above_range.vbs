WScript.Echo CByte(256) '! 6
