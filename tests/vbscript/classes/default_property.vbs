Class K
  Private datos
  Private Sub Class_Initialize
    Set datos = CreateObject("Scripting.Dictionary")
  End Sub
  Public Default Property Get Item(k)
    Item = datos(k)
  End Property
  Public Property Let Item(k, v)
    datos(k) = v
  End Property
End Class
Set o = New K
o.Item("a") = 1
o("b") = 2
WScript.Echo o("a"), o.Item("b") '> 1 2
