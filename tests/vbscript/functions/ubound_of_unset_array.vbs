Dim a()
WScript.Echo UBound(a) '! 9
