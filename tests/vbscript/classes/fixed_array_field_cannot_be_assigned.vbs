On Error Resume Next
Class C
  Public a(2)
  Sub T
    a = 1
  End Sub
  Sub U
    Set a = Me
  End Sub
End Class
Set o = New C
o.T : WScript.Echo Err.Number : Err.Clear '> 13
o.U : WScript.Echo Err.Number : Err.Clear '> 13
