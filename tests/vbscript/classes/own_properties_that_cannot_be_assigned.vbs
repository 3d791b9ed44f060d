On Error Resume Next
Class C
  Property Set P(v)
  End Property
  Property Get Q
    Q = 1
  End Property
  Sub T
    P = 1
  End Sub
  Sub U
    Q = 1
  End Sub
  Sub V
    Me.Q = 1
  End Sub
End Class
Set o = New C
o.T : WScript.Echo Err.Number : Err.Clear '> 424
o.U : WScript.Echo Err.Number : Err.Clear '> 501
o.V : WScript.Echo Err.Number : Err.Clear '> 501
