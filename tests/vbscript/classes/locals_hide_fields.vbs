Class K
  Public v
  Public Sub S
    Dim v
    v = "local"
  End Sub
End Class
Set o = New K
o.v = "campo"
o.S
WScript.Echo o.v '> campo
