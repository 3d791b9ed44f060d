Select Case 9
  Case 1 x = "uno"
  Case Else x = "otro"
End Select
WScript.Echo x '> otro
