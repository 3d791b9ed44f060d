Dim n
Function Siguiente()
  n = n + 1
  Siguiente = n
End Function
Select Case Siguiente()
  Case 5, 6
    WScript.Echo "nunca"
  Case 1
    WScript.Echo "uno" '> uno
End Select
WScript.Echo n '> 1
