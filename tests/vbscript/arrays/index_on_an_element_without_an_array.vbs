On Error Resume Next
v = Array(0, Nothing, "abc", Array(1, Nothing), Empty)
v(0)(0) = 4 : WScript.Echo Err.Number : Err.Clear '> 13
v(1)(0) = 4 : WScript.Echo Err.Number : Err.Clear '> 13
v(2)(0) = 4 : WScript.Echo Err.Number : Err.Clear '> 13
v(4)(0) = 4 : WScript.Echo Err.Number : Err.Clear '> 13
v(3)(1)(0) = 4 : WScript.Echo Err.Number : Err.Clear '> 13
v(1)(0)(0) = 4 : WScript.Echo Err.Number : Err.Clear '> 13
Set v(1)(0) = New RegExp : WScript.Echo Err.Number : Err.Clear '> 13
v(3)(0) = 4 : WScript.Echo Err.Number, v(3)(0) '> 0 4
Set v(1) = CreateObject("Scripting.Dictionary")
v(1)("k") = 4 : WScript.Echo Err.Number, v(1)("k") '> 0 4
