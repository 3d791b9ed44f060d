n = 2
If n = 1 Then
  x = "uno"
ElseIf n = 2 Then x = "dos"
Else x = "otro"
End If
WScript.Echo x '> dos
