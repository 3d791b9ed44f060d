' Up by 75, down by 50 a turn, never beyond the setpoint.
mw.leer 1, 60
For i = 0 To 29
  If i < 15 Then mw.escribir 1, 10, 1000 Else mw.escribir 1, 10, 200
  sp = mw.leer(1, 10) : v = mw.leer(1, 11)
  If v < sp Then
    v = v + 75 : If v > sp Then v = sp
  ElseIf v > sp Then
    v = v - 50 : If v < sp Then v = sp
  End If
  mw.escribir 1, 11, v
  If i Mod 6 = 5 Then s = s & " " & v
Next
WScript.Echo Mid(s, 2) '> 450 900 850 550 250
