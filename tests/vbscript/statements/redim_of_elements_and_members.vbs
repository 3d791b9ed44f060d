' ReDim makes or grows the array where it stands: in a member, in an element, in the item of a dictionary.
Class Holder
  Public list, open(), fixed(1)
  Public Sub Own
    ReDim Me.list(2)
    WScript.Echo UBound(list)
    ReDim Preserve list(4)
    WScript.Echo UBound(list)
  End Sub
End Class
Dim o, rows, d
Set o = New Holder
ReDim o.list(3)
o.list(3) = "kept"
ReDim Preserve o.list(5)
WScript.Echo UBound(o.list), o.list(3) '> 5 kept
ReDim o.open(1, 2)
WScript.Echo UBound(o.open, 2) '> 2
With o
  ReDim .list(1)
End With
WScript.Echo UBound(o.list) '> 1
o.Own
'> 2
'> 4
rows = Array(Array(1, 2), 3)
ReDim Preserve rows(0)(4)
WScript.Echo UBound(rows(0)), rows(0)(1), UBound(rows) '> 4 2 1
ReDim rows(1)(0)
WScript.Echo UBound(rows(1)) '> 0
Set d = CreateObject("Scripting.Dictionary")
ReDim d("k")(3)
WScript.Echo UBound(d("k")) '> 3
On Error Resume Next
ReDim o.fixed(5)
WScript.Echo Err.Number, UBound(o.fixed) '> 10 1
