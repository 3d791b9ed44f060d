WScript.Echo InStr(0, "abc", "a") '! 5
