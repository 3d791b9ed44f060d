Function Izquierda(Left)
  Izquierda = Left + 1
End Function
WScript.Echo Izquierda(4) '> 5
