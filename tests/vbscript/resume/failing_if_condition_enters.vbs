On Error Resume Next
If 1 / 0 Then
  WScript.Echo "dentro" '> dentro
Else
  WScript.Echo "sino"
End If
WScript.Echo Err.Number '> 11
