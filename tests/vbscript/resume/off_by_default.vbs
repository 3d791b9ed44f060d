WScript.Echo "antes" '> antes
x = 1 / 0 '! 11
WScript.Echo "nunca"
