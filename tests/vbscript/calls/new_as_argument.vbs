Sub F(o)
  WScript.Echo TypeName(o)
End Sub
Class K
End Class
F New K '> K
