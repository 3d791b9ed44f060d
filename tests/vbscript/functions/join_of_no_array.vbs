WScript.Echo Join("abc", "-") '! 13
