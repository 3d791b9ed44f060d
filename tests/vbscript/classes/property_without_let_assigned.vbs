Class C
  Public Property Get P(i) : P = i : End Property
  Public Property Get Q : Q = 1 : End Property
  Public Sub M(a) : End Sub
  Public Function F(a) : End Function
  Public Property Set Z(v) : End Property
  Public Property Let L(v) : End Property
End Class
Dim o
Set o = New C
On Error Resume Next
o.P(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 438
o.P = 2 : WScript.Echo Err.Number : Err.Clear '> 438
o.Q = 2 : WScript.Echo Err.Number : Err.Clear '> 438
o.Q(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 438
o.M(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 438
o.F(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 438
o.Z(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 438
Set o.P(1) = o : WScript.Echo Err.Number : Err.Clear '> 438
o.L(1) = 2 : WScript.Echo Err.Number : Err.Clear '> 450
