WScript.Echo 1 + 2 & 3, 1 & 2 + 3 '> 33 15
WScript.Echo "5" & 3 + 2 & "1" '> 551
