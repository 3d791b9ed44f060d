Class Trio
  Public Default Function Valores : Valores = Array(6, 7, 8) : End Function
End Class
Class Vacia : End Class
WScript.Echo Join(New Trio, "-"), Join(Array(1, Empty, True, 2.5), ";") '> 6-7-8 1;;True;2,5
On Error Resume Next
x = Join(Null) : WScript.Echo Err.Number : Err.Clear '> 94
x = Join(New Vacia) : WScript.Echo Err.Number : Err.Clear '> 438
x = Join(Nothing) : WScript.Echo Err.Number : Err.Clear '> 91
x = Join("a") : WScript.Echo Err.Number : Err.Clear '> 13
x = Join(Empty) : WScript.Echo Err.Number : Err.Clear '> 13
x = Join(7, ",") : WScript.Echo Err.Number : Err.Clear '> 13
Dim t(1, 1)
x = Join(t) : WScript.Echo Err.Number : Err.Clear '> 13
x = Join(Array("a", Null)) : WScript.Echo Err.Number : Err.Clear '> 13
x = Join(Array(Null)) : WScript.Echo Err.Number : Err.Clear '> 13
x = Join(Array("a", Array(1))) : WScript.Echo Err.Number : Err.Clear '> 13
x = Join(Array("a", New Vacia)) : WScript.Echo Err.Number : Err.Clear '> 438
x = Join(Array("a", "b"), Null) : WScript.Echo Err.Number : Err.Clear '> 94
