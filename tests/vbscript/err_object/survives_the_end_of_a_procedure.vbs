Sub S
  On Error Resume Next
  x = 1 / 0
End Sub
S
WScript.Echo Err.Number '> 11
