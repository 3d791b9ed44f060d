Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Set o = New K
WScript.Echo "última línea" '> última línea
'> muere
