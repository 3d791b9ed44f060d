Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Sub S
  Set o = New K
  x = 1 / 0
End Sub
On Error Resume Next
S
WScript.Echo Err.Number
'> muere
'> 11
