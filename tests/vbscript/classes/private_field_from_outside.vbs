Class K
  Private v
End Class
Set o = New K
o.v = 1 '! 438
