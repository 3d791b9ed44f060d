temperatura = 15
For minuto = 1 To 12
  If temperatura < 18 Then
    caldera = True
  ElseIf temperatura > 22 Then
    caldera = False
  End If
  If caldera Then temperatura = temperatura + 2 Else temperatura = temperatura - 1
  s = s & temperatura & " "
Next
WScript.Echo Trim(s) '> 17 19 21 23 22 21 20 19 18 17 19 21
