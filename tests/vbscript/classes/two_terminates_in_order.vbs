Class K
  Public n
  Private Sub Class_Terminate
    WScript.Echo "muere " & n
  End Sub
End Class
Set a = New K : a.n = "a"
Set b = New K : b.n = "b"
Set b = Nothing '> muere b
Set a = Nothing '> muere a
