' idle, filling, heating, draining; the state stands in register 20.
Const Idle = 0, Filling = 1, Heating = 2, Draining = 3
Dim trace
Sub Enter(state)
  mw.escribir 1, 20, state
  trace = trace & state
End Sub
Sub Turn
  Select Case mw.leer(1, 20)
  Case Idle : If mw.leer(1, 23) = 1 Then mw.escribir 1, 23, 0 : Enter Filling
  Case Filling
    mw.escribir 1, 21, mw.leer(1, 21) + 25
    If mw.leer(1, 21) >= 100 Then Enter Heating
  Case Heating
    mw.escribir 1, 22, mw.leer(1, 22) + 20
    If mw.leer(1, 22) >= 60 Then Enter Draining
  Case Draining
    mw.escribir 1, 21, mw.leer(1, 21) - 50
    If mw.leer(1, 21) <= 0 Then mw.escribir 1, 22, 0 : Enter Idle
  End Select
End Sub
Turn
WScript.Echo mw.leer(1, 20) '> 0
mw.escribir 1, 23, 1
For i = 1 To 10 : Turn : Next
WScript.Echo trace '> 1230
WScript.Echo mw.leer(1, 20), mw.leer(1, 21), mw.leer(1, 22) '> 0 0 0
