n = "global"
Class K
  Public n
  Sub Usa
    n = "campo"
    Muestra
    WScript.Echo Me.n
  End Sub
End Class
Sub Muestra
  WScript.Echo Me.n
End Sub
Set o = New K
o.Usa
'> global
'> campo
