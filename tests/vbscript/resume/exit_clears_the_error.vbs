Sub S
  On Error Resume Next
  x = 1 / 0
  Exit Sub
End Sub
Function F
  On Error Resume Next
  x = 1 / 0
  Exit Function
End Function
Class C
  Property Get P
    On Error Resume Next
    x = 1 / 0
    Exit Property
  End Property
End Class
On Error Resume Next
S : WScript.Echo Err.Number '> 0
x = F : WScript.Echo Err.Number '> 0
Set o = New C
x = o.P : WScript.Echo Err.Number '> 0
