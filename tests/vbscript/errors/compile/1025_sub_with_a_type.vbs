Sub Total As Long '! 1025
End Sub
