Class C
  Sub a
  End Sub
  Dim a '! 1041
End Class
