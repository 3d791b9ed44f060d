WScript.Echo Log(0) '! 5
