Dim a()
WScript.Echo LBound(a) '! 9
