Class K
  Public Function F
    F = 3
  End Function
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
x = (New K).F
'> muere
WScript.Echo x '> 3
