WScript.Echo 2 + 3 * 4, (2 + 3) * 4, 10 - 2 - 3 '> 14 20 5
WScript.Echo 7 \ 2 * 2, 2 * 3 \ 4 '> 1 1
WScript.Echo 10 Mod 3 * 2, 10 \ 3 Mod 2, 20 \ 6 \ 2 '> 4 1 1
WScript.Echo 5 Mod 3 + 1, 100 / 10 / 5 '> 3 2
