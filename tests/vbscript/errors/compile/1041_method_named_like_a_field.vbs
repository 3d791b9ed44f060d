Class C
  Dim a
  Sub a '! 1041
  End Sub
End Class
