'options --comprobar
WScript.Echo "no sale"
x = (1 '! 1006
