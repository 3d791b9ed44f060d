Dim g
g = 5
Class K
  Public Sub Sube
    g = g + 1
  End Sub
End Class
Set o = New K
o.Sube
WScript.Echo g '> 6
