WScript.Echo Len ("abc") + 1 '> 4
x = Array (1, 2)
WScript.Echo x (1) '> 2
