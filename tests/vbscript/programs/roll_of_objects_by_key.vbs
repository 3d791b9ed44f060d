Class Person
  Public Name, Born
  Public Function Init(n, b) : Name = n : Born = b : Set Init = Me : End Function
End Class
Set d = CreateObject("Scripting.Dictionary")
d.Add "a", (New Person).Init("Ana", 1990)
d.Add "b", (New Person).Init("Blas", 1985)
d("b").Born = 1986
For Each k In d.Keys
  WScript.Echo k, d(k).Name, d.Item(k).Born
Next
'> a Ana 1990
'> b Blas 1986
Set oldest = Nothing
For Each p In d.Items
  If oldest Is Nothing Then
    Set oldest = p
  ElseIf p.Born < oldest.Born Then
    Set oldest = p
  End If
Next
WScript.Echo oldest.Name '> Blas
