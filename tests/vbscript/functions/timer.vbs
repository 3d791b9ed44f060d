WScript.Echo Timer >= 0, Timer() < 86400 '> True True
WScript.Echo TypeName(Timer) '> Single
