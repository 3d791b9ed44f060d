Class C
  Public v
End Class
Set a = New C
Set b = a
b.v = 5
WScript.Echo a.v, a Is b '> 5 True
Set b = Nothing
WScript.Echo a.v, b Is Nothing '> 5 True
