' Each text brings a class and a name of its own; when its last object has gone, the name is free again.
Sub Work
  Dim i, o
  For i = 1 To 20000
    Execute "Class K : Public Sub M : zz" & i & " : End Sub : End Class : Set o = New K"
  Next
  WScript.Echo TypeName(o) '> K
End Sub
Work
WScript.Echo "done" '> done
