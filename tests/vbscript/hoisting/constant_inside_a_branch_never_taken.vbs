If False Then
  Const C = 5
End If
WScript.Echo C '> 5
