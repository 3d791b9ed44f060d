On Error Resume Next
Dim d()
x = UBound(d) : WScript.Echo Err.Number : Err.Clear '> 9
x = LBound(d) : WScript.Echo Err.Number : Err.Clear '> 9
x = UBound(Null) : WScript.Echo Err.Number : Err.Clear '> 13
x = LBound(Null) : WScript.Echo Err.Number : Err.Clear '> 13
x = UBound(Empty) : WScript.Echo Err.Number : Err.Clear '> 13
x = LBound(3) : WScript.Echo Err.Number : Err.Clear '> 13
x = UBound("abc") : WScript.Echo Err.Number : Err.Clear '> 13
x = UBound(Array(1), Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = UBound(Array(1), 0) : WScript.Echo Err.Number : Err.Clear '> 9
x = LBound(Array(1), 2) : WScript.Echo Err.Number : Err.Clear '> 9
x = UBound(Array(1), "uno") : WScript.Echo Err.Number : Err.Clear '> 13
Dim t(2, 5)
WScript.Echo UBound(t), UBound(t, 2), UBound(t, "2"), UBound(t, 1.5), UBound(Array()) '> 2 5 5 5 -1
WScript.Echo TypeName(UBound(t)), TypeName(LBound(t)) '> Long Long
