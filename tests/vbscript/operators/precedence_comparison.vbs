WScript.Echo 1 + 1 = 2, "a" & "b" = "ab" '> True True
WScript.Echo 1 = 1 And 2 = 2, 1 = 2 Or 2 = 2 '> True True
WScript.Echo 5 And 4 = 4 '> 5
