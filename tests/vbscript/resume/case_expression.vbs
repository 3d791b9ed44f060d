On Error Resume Next
x = 1
Select Case x
  Case 1
    y = 1 / 0
    WScript.Echo "sigue en su rama" '> sigue en su rama
  Case 2
    WScript.Echo "nunca"
End Select
