Class K
  Private Sub Class_Initialize
    x = 1 / 0 '! 11
  End Sub
End Class
Set o = New K
