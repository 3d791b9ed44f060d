WScript.Echo "10" = 10, 10 = "10", "2" < 10 '> True True True
WScript.Echo "abc" = 5 '! 13
