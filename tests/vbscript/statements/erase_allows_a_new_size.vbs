Dim a()
ReDim a(5, 5)
Erase a
ReDim a(1)
WScript.Echo UBound(a) '> 1
