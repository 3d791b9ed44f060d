WScript.Echo Replace("xAxa", "A", "-") '> x-xa
WScript.Echo Replace("xAxa", "A", "-", 1, -1, vbTextCompare) '> x-x-
