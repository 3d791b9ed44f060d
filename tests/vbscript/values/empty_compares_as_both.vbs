Dim e
WScript.Echo e = 0, e = "", e = False, e = Empty '> True True True True
WScript.Echo e < 1, e < "a", e > -1 '> True True True
