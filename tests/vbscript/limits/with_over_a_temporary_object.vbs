Class Cosa
  Public n
  Public Sub saluda
    WScript.Echo "hola", n
  End Sub
  Private Sub Class_Terminate
    WScript.Echo "fuera", n
    ReDim lista(5)
  End Sub
End Class
Dim lista(), c
ReDim lista(0)
With New Cosa
  .n = 1
  .saluda          '> hola 1
End With           '> fuera 1
Set lista(0) = New Cosa
lista(0).n = 2
With lista(0)
  lista(0) = "otra"
  .saluda          '> hola 2
End With           '> fuera 2
WScript.Echo UBound(lista)  '> 5
Set c = New Cosa
c.n = 3
With c
  Set c = Nothing
  .saluda          '> hola 3
  .n = 4
End With           '> fuera 4
On Error Resume Next
With New Cosa
  .n = 5
  .nada
  WScript.Echo Err.Number  '> 438
End With           '> fuera 5
