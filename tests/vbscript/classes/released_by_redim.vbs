Class K
  Private Sub Class_Terminate
    WScript.Echo "muere"
  End Sub
End Class
ReDim a(3)
Set a(3) = New K
ReDim Preserve a(1) '> muere
WScript.Echo "fin" '> fin
