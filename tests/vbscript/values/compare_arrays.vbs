' An array cannot be compared with anything, not even with Null.
On Error Resume Next
x = 1
x = (Array(8) = 8) : WScript.Echo Err.Number, x : Err.Clear '> 13 1
x = (Array(8) <> Null) : WScript.Echo Err.Number : Err.Clear '> 13
x = (Null = Array(8)) : WScript.Echo Err.Number : Err.Clear '> 13
x = ("a" < Array("a")) : WScript.Echo Err.Number : Err.Clear '> 13
x = (Array() = Array()) : WScript.Echo Err.Number : Err.Clear '> 13
x = (Empty = Array(1)) : WScript.Echo Err.Number : Err.Clear '> 13
x = (True >= Array(True)) : WScript.Echo Err.Number : Err.Clear '> 13
If Array(1) = Null Then WScript.Echo "entra" '> entra
WScript.Echo Err.Number, x '> 13 1
Class Lista
  Public Default Function Valores : Valores = Array(1) : End Function
End Class
Err.Clear : x = (New Lista = Null) : WScript.Echo Err.Number '> 13
