' As an argument it stays an object.
Class K
End Class
Sub S(o)
  WScript.Echo TypeName(o)
End Sub
S New K '> K
