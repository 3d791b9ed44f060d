x = 5
If x=5Then WScript.Echo "cinco" '> cinco
