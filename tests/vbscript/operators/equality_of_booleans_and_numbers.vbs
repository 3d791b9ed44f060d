WScript.Echo True = -1, True = 1, False = 0 '> True False True
