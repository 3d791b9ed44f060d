Sub Fuera
  If True Then
    Sub Dentro '! 1002
    End Sub
  End If
End Sub
