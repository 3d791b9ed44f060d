Class K
  Private hijo
  Private Sub Class_Initialize
    Set hijo = New K '! 28 @*
  End Sub
End Class
Set o = New K
