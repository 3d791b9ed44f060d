Dim a()
a = Array(1, 2, 3)
WScript.Echo UBound(a) '> 2
