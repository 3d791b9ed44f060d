WScript.Echo TypeName(Time) '> Date
WScript.Echo CDbl(Time) >= 0, CDbl(Time()) < 1 '> True True
