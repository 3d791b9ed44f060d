WScript.Echo DateAdd("x", 1, #1/31/2020#) '! 5
