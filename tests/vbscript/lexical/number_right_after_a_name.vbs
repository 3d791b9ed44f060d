Class K
  Sub Mide(x) WScript.Echo "K", x End Sub
  Function Doble(x) Doble = x * 2 End Function
End Class
Sub Proc(x) WScript.Echo x End Sub
Set obj = New K
obj.Mide.25 '> K 0,25
Proc.5 '> 0,5
Proc .5 '> 0,5
With obj
  .Mide.75 '> K 0,75
  .Mide .5 '> K 0,5
End With
