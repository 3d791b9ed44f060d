Class K
  Public n
  Private Sub Class_Terminate
    WScript.Echo "muere " & n
  End Sub
End Class
Set o = New K
o.n = 1
o = 5 '> muere 1
WScript.Echo o '> 5
