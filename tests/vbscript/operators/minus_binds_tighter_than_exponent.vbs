WScript.Echo -4 ^ 2, 3 * 4 ^ 2, 2 ^ 2 ^ 3 '> 16 48 64
a = 3
WScript.Echo -a ^ 2, 10 - a ^ 2, 10 + -a ^ 2, - -a ^ 2 '> 9 1 19 9
WScript.Echo 2 ^ -2 ^ 2, 2 ^ +3, -2 ^ -1 '> 0,0625 8 -0,5
WScript.Echo 6 / -a ^ 2 * 3, 7 Mod -2 ^ 2 '> 2 3
WScript.Echo 2 ^ Not -3 '> 4
Show -4 ^ 2 '> 16
If -1 ^ 2 = 1 Then WScript.Echo "uno" '> uno
WScript.Echo Eval("-5 ^ 2") '> 25
Sub Show(x) WScript.Echo x End Sub
