Sub S
  S
End Sub
On Error Resume Next
S
WScript.Echo Err.Number '> 28
