Class K
  Public Sub Falla
    x = 1 / 0
    WScript.Echo "nunca"
  End Sub
End Class
Set o = New K
On Error Resume Next
o.Falla
WScript.Echo Err.Number '> 11
