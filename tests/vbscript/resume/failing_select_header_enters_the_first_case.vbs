On Error Resume Next
Select Case 1 / 0
  Case 1
    WScript.Echo "primero" '> primero
  Case 2
    WScript.Echo "segundo"
  Case Else
    WScript.Echo "otro"
End Select
WScript.Echo Err.Number '> 11
