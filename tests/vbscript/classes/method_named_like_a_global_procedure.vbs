Sub Avisa
  WScript.Echo "global"
End Sub
Class K
  Public Sub Avisa
    WScript.Echo "método"
  End Sub
  Public Sub Corre
    Avisa
  End Sub
End Class
Set o = New K
o.Corre '> método
Avisa '> global
