Class K
  Public v
  Private Sub Class_Initialize
    v = 5
    WScript.Echo "nace"
  End Sub
End Class
Set o = New K '> nace
WScript.Echo o.v '> 5
