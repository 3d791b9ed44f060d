' A state machine with times.
Set tiempo = CreateObject("Scripting.Dictionary")
tiempo("verde") = 3 : tiempo("ámbar") = 1 : tiempo("rojo") = 2
estado = "rojo"
queda = tiempo(estado)
For segundo = 1 To 12
  s = s & UCase(Left(estado, 1))
  queda = queda - 1
  If queda = 0 Then
    Select Case estado
      Case "verde" estado = "ámbar"
      Case "ámbar" estado = "rojo"
      Case "rojo" estado = "verde"
    End Select
    queda = tiempo(estado)
  End If
Next
WScript.Echo s '> RRVVVÁRRVVVÁ
