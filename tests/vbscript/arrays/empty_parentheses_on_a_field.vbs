Class K
  Public v
End Class
Set o = New K
o.v = 5
WScript.Echo o.v() '> 5
