WScript.Echo Left("abc", -1) '! 5
