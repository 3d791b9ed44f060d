WScript.Echo "a" < "b", "a" < "B", "a" = "A" '> True False False
WScript.Echo "10" < "9", "" < "a", "abc" < "abd" '> True True True
