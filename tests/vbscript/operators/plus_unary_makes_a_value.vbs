n = 1
Cambia +n
WScript.Echo n '> 1
Cambia n
WScript.Echo n '> 9
Sub Cambia(x)
  x = 9
End Sub
