Class K
  Public v(3)
  Public w
End Class
Set o = New K
o.v(1) = 5
o.w = Array(7, 8)
WScript.Echo o.v(1), o.w(1) '> 5 8
