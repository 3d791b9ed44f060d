Select Case "b"
  Case "B" WScript.Echo "mayúscula"
  Case "b" WScript.Echo "minúscula" '> minúscula
End Select
