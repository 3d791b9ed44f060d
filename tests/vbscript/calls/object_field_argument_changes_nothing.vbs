Class K
  Public v
End Class
Sub Dobla(n)
  n = n * 2
End Sub
Set o = New K
o.v = 5
Call Dobla(o.v)
WScript.Echo o.v '> 5
