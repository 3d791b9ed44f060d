Class K
  Public Sub S(a)
  End Sub
End Class
Set o = New K
o.S 1, 2 '! 450
