On Error Resume Next
Function F
  F = 1
  WScript.Echo "llamada"
End Function
x = F() + 1 / 0 + F()
WScript.Echo Err.Number
'> llamada
'> 11
