WScript.Echo Sqr(-1) '! 5
