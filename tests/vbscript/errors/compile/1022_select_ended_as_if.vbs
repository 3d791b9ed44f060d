Select Case x
  Case 1
End If '! 1022
