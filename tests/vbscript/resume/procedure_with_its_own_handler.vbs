Sub Falla
  On Error Resume Next
  x = 1 / 0
  WScript.Echo "sigue dentro", Err.Number
End Sub
Falla '> sigue dentro 11
y = 1 / 0 '! 11
