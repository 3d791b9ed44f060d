Select Case 1.0
  Case CByte(1) WScript.Echo "número igual" '> número igual
End Select
Select Case True
  Case -1 WScript.Echo "verdadero es -1" '> verdadero es -1
End Select
