' Inside With a point with a blank before it and none after begins a member of the object of With where a name or a
' literal cannot have one; in an expression it belongs to the name before it.
Class Box
  Public size, lid
  Public Sub Take(v)
    WScript.Echo "took " & v
  End Sub
End Class
Dim o, p, v
Set o = New Box
Set p = New Box
o.size = 3
p.size = 4
With o
  Select Case 1
  Case 1 .lid = 5
  End Select
  WScript.Echo .lid '> 5
  v = p .size
  WScript.Echo v '> 4
  p.Take .size '> took 3
  If .size = 3 Then .size = 6 Else .size = 7
  WScript.Echo .size, o.size '> 6 6
End With
