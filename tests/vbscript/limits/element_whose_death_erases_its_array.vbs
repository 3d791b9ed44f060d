Class Borra
  Private Sub Class_Terminate
    WScript.Echo "termina"
    Erase lista
  End Sub
End Class

Dim lista()
ReDim lista(1)
Set lista(0) = New Borra
lista(1) = 8
lista(0) = 1                 '> termina
On Error Resume Next
WScript.Echo lista(1)
WScript.Echo Err.Number      '> 9
On Error GoTo 0

ReDim lista(1)
Set lista(0) = New Borra
lista(0) = lista(0)          '! 438
                             '> termina
