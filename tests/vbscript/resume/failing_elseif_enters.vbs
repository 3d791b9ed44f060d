On Error Resume Next
If False Then
  WScript.Echo "primero"
ElseIf 1 / 0 Then
  WScript.Echo "segundo" '> segundo
Else
  WScript.Echo "sino"
End If
