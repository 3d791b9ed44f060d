WScript.Echo Chr(256) '! 5
