On Error Resume Next
With nada
  WScript.Echo "dentro" '> dentro
End With
