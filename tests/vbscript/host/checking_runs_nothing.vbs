'options --comprobar
WScript.Echo "no sale"
x = 1 / 0
