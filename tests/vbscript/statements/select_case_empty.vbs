Select Case 1
End Select
Select Case 1
  Case Else
End Select
WScript.Echo "fin" '> fin
