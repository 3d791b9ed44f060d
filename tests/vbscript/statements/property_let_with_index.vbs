Class C
  Private datos(5)
  Public Property Let Item(i, v)
    datos(i) = v
  End Property
  Public Property Get Item(i)
    Item = datos(i)
  End Property
End Class
Set o = New C
o.Item(2) = "dos"
o.Item(3) = o.Item(2) & "+1"
WScript.Echo o.Item(2), o.Item(3) '> dos dos+1
