Class K
  Public v
  Public Sub Pon(v)
    Me.v = v * 2
  End Sub
  Public Function Yo
    Set Yo = Me
  End Function
End Class
Set o = New K
o.Pon 4
WScript.Echo o.v, o.Yo Is o '> 8 True
