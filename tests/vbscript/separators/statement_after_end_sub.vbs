Dim x
Sub S
  x = 1
End Sub : y = 2
S
WScript.Echo x, y '> 1 2
