WScript.Echo CByte(-1) '! 6
