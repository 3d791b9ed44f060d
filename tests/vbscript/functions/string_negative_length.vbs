WScript.Echo String(-1, "x") '! 5
