n = 10
WScript.Echo n = "10", "10" = n '> True True
