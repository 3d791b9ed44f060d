Class K
  Public v
End Class
Set d = CreateObject("Scripting.Dictionary")
Set d("uno") = New K
d("uno").v = 5
d.Add "dos", New K
d("dos").v = 6
WScript.Echo d("uno").v + d("dos").v, TypeName(d("dos")) '> 11 K
