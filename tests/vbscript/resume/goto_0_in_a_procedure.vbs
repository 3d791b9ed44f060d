Sub Falla
  On Error Resume Next
  x = 1 / 0
  On Error GoTo 0
  x = CInt("abc")
  WScript.Echo "nunca"
End Sub
On Error Resume Next
Falla
WScript.Echo Err.Number '> 13
