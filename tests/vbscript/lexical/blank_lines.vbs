

WScript.Echo "después" '> después
