On Error Resume Next
ReDim a(2000000000)
WScript.Echo Err.Number '> 7
ReDim a(50000, 50000)
ReDim b(3)
WScript.Echo UBound(b) '> 3
