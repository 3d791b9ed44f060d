If 1 > 2 Then
  Sub Ring : n = n + 1 : End Sub
Else
  Function Dos
    Dos = 2
  End Function
End If
Ring
WScript.Echo n, Dos '> 1 2
