a = "x" : b = "y"
WScript.Echo a&b, a&"z" '> xy xz
