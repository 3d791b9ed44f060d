Function F
  x = 1 / 0
End Function
On Error Resume Next
If F() Then
  WScript.Echo "dentro" '> dentro
End If
