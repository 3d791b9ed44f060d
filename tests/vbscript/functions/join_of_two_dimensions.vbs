Dim a(1, 1)
WScript.Echo Join(a) '! 13
