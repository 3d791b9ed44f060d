Select Case 5
  Case 5
    WScript.Echo "primero" '> primero
  Case 5
    WScript.Echo "nunca"
  Case Else
    WScript.Echo "nunca"
End Select
