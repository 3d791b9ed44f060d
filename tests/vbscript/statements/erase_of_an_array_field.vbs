Class K
  Public a(2)
  Public Sub Borra
    Erase a
  End Sub
End Class
Set o = New K
o.a(1) = 5
o.Borra
WScript.Echo TypeName(o.a(1)) '> Empty
