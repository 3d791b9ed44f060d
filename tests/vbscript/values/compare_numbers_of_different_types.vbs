WScript.Echo CByte(5) = 5.0, CCur(1.5) = 1.5, 5 = CLng(5) '> True True True
WScript.Echo CSng(0.5) = 0.5, True = CInt(-1) '> True True
