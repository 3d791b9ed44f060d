Select Case 9
  Case 1
    WScript.Echo "nunca"
End Select
WScript.Echo "fin" '> fin
