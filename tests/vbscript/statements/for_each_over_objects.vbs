Class K
  Public v
End Class
Dim a(2)
For i = 0 To 2
  Set a(i) = New K
  a(i).v = i
Next
For Each o In a
  o.v = o.v * 10
Next
WScript.Echo a(0).v, a(1).v, a(2).v '> 0 10 20
