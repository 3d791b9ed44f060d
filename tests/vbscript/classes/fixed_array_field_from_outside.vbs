' A fixed array that is a public variable takes no other value by any way to it; an element does.
Class Tray
  Public cells(2)
  Public free()
  Sub Inside
    On Error Resume Next
    Me.cells = 5
    WScript.Echo Err.Number, UBound(cells) '> 13 2
    Err.Clear
    Set Me.cells = Me
    WScript.Echo Err.Number, UBound(cells) '> 13 2
  End Sub
End Class
Set t = New Tray
t.Inside
On Error Resume Next
For i = 1 To 2
  t.cells = 5
  WScript.Echo Err.Number, TypeName(t.cells)
  Err.Clear
Next
'> 13 Variant()
'> 13 Variant()
t.cells = Array(1)
WScript.Echo Err.Number, UBound(t.cells) '> 13 2
Err.Clear
t.cells() = 5
WScript.Echo Err.Number, UBound(t.cells) '> 13 2
Err.Clear
Set t.cells = t
WScript.Echo Err.Number, UBound(t.cells) '> 13 2
Err.Clear
With t
  .cells = "x"
  WScript.Echo Err.Number, UBound(.cells) '> 13 2
  Err.Clear
  .cells(1) = "x"
  WScript.Echo Err.Number, t.cells(1) '> 0 x
End With
t.free = Array(1, 2)
WScript.Echo Err.Number, UBound(t.free) '> 0 1
copy = t.cells
copy = 3
WScript.Echo Err.Number, copy '> 0 3
