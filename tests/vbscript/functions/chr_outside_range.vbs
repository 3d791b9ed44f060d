WScript.Echo Chr(-1) '! 5
