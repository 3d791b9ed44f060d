If Null Then
  WScript.Echo "nunca"
Else
  WScript.Echo "sino" '> sino
End If
If Not Null Then WScript.Echo "nunca"
