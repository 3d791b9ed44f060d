Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
Sub S
  Dim o
  Set o = New K
  WScript.Echo "dentro"
End Sub
S
'> dentro
'> muere
WScript.Echo "fuera" '> fuera
