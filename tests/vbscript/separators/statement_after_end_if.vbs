If True Then
  x = 1
End If : y = 2
WScript.Echo x, y '> 1 2
