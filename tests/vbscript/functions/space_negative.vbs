WScript.Echo Space(-1) '! 5
