Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Set d = CreateObject("Scripting.Dictionary")
d.Add "k", New K
WScript.Echo "dentro" '> dentro
d.Remove "k" '> muere
