WScript.Echo Round(1234, -2) '! 5
