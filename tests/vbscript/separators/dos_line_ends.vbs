If True Then
  WScript.Echo "sí" '> sí
End If
x = 1 / 0 '! 11
