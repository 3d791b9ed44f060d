Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Dim a(1)
Set a(0) = New K
Erase a '> muere
WScript.Echo "fin" '> fin
