On Error Resume Next
Select Case 1 / 0
  Case 1
  Case Else
End Select
WScript.Echo "sigue", Err.Number '> sigue 11
