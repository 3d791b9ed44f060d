Dim log
Class Guard
  Public Name
  Private Sub Class_Terminate : log = log & "-" & Name : End Sub
End Class
Sub Work
  Dim g : Set g = New Guard : g.Name = "a"
  log = log & "+a"
  Exit Sub
End Sub
Work
Sub Fails
  Dim g : Set g = New Guard : g.Name = "b"
  log = log & "+b"
  Err.Raise 5
End Sub
On Error Resume Next
Fails
WScript.Echo log, Err.Number '> +a-a+b-b 5
