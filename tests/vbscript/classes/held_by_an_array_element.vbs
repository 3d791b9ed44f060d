Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Dim a(0)
Set o = New K
Set a(0) = o
Set o = Nothing
WScript.Echo "en la matriz" '> en la matriz
a(0) = 5 '> muere
