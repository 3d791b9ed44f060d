WScript.Echo CLng(2147483648) '! 6
