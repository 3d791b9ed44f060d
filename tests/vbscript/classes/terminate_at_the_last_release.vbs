Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Set a = New K
Set b = a
Set a = Nothing
WScript.Echo "queda b" '> queda b
Set b = Nothing '> muere
WScript.Echo "fin" '> fin
