Class K
  Private Sub Class_Terminate(a) '! 1053
  End Sub
End Class
