' A Single beside a Double is compared with the precision of a Single, on either side and by every operator.
WScript.Echo CSng(0.1) = 0.1, 0.1 = CSng(0.1), CSng(0.7) = 0.7, CSng(0.5) = 0.5 '> True True True True
WScript.Echo CSng(0.1) <> 0.1, CSng(0.1) < 0.1, CSng(0.1) > 0.1 '> False False False
WScript.Echo CSng(0.1) <= 0.1, CSng(0.1) >= 0.1, 0.1 <= CSng(0.1) '> True True True
s = CSng(0.1) : d = 0.1
If s = d Then WScript.Echo "igual" '> igual
Select Case s
Case d WScript.Echo "caso" '> caso
End Select
WScript.Echo CSng(0.1) = 0.10001, CSng(16777216) = 16777217.0 '> False True
' A difference is a Double again.
WScript.Echo CSng(0.1) - 0.1 = 0 '> False
' So is a Single beside a Currency.
c = CCur(0.1)
WScript.Echo CSng(0.1) = c, c = CSng(0.1), s < c, c < s, c <> s, CSng(0.3) = CCur(0.3001) '> True True False False False False
