On Error Resume Next
If True Then
  x = 1 / 0
  WScript.Echo "sigue" '> sigue
Else
  WScript.Echo "nunca"
End If
