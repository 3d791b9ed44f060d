On Error Resume Next
Class Caja
  Public size, tabla(2)
  Sub Dentro
    On Error Resume Next
    x = Me.size() : WScript.Echo Err.Number : Err.Clear
    Me.size() = 4 : WScript.Echo Err.Number, Me.size : Err.Clear
  End Sub
End Class
Set o = New Caja
o.size = 9
x = o.size() : WScript.Echo Err.Number, TypeName(x) : Err.Clear '> 5 Empty
x = o.tabla() : WScript.Echo Err.Number : Err.Clear '> 5
o.size() = 1
WScript.Echo Err.Number, o.size '> 0 1
Set o.size() = o
WScript.Echo Err.Number, o.size Is o : Err.Clear '> 0 True
o.tabla(1) = 5
WScript.Echo o.tabla(1) '> 5
o.size = Array(7, 8)
WScript.Echo o.size(1) '> 8
o.size(0) = 6
WScript.Echo o.size(0), Err.Number '> 6 0
o.Dentro
'> 5
'> 0 4
