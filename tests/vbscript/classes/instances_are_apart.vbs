Class K
  Public v
End Class
Set a = New K
Set b = New K
a.v = 1 : b.v = 2
WScript.Echo a.v, b.v, a Is b '> 1 2 False
