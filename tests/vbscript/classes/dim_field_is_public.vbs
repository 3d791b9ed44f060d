Class K
  Dim v
End Class
Set o = New K
o.v = 4
WScript.Echo o.v '> 4
