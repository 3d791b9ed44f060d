Sub Hondo
  x = 1 / 0
  WScript.Echo "nunca"
End Sub
Sub Medio
  Hondo
  WScript.Echo "nunca"
End Sub
On Error Resume Next
Medio
WScript.Echo Err.Number '> 11
