Class K
  Public v
End Class
Set o = New K
o.v = 5
On Error Resume Next
x = o.v(0)
WScript.Echo Err.Number <> 0, TypeName(x) '> True Empty
