WScript.Echo "no sale"
If True Then
  y = (1 '! 1006
End If
