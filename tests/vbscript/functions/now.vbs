WScript.Echo TypeName(Now), IsDate(Now()) '> Date True
WScript.Echo Now >= Date '> True
WScript.Echo DateDiff("s", Now, Now) <= 1 '> True
