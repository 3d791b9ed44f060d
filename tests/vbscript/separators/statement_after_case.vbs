Select Case 1
  Case 1 x = "uno"
  Case 2 x = "dos"
  Case Else x = "otro"
End Select
WScript.Echo x '> uno
