Class K
  Public v
End Class
Dim a(0)
Set a(0) = New K
Set a(0).v = New K
a(0).v.v = 5
WScript.Echo a(0).v.v '> 5
