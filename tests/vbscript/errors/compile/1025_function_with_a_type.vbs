Function Total() As Long '! 1025
  Total = 1
End Function
