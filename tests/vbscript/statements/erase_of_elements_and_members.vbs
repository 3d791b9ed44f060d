' Erase empties the array where it stands: in an element, in a member, in the item of a dictionary.
Class Store
  Public list, asked, fixed(2)
  Public Function Give(n)
    asked = asked + 1
    Give = Array(n, n)
  End Function
  Public Sub Clear
    Erase Me.list
  End Sub
  Public Sub ClearFixed
    fixed(1) = 5
    Erase Me.fixed
    WScript.Echo "[" & fixed(1) & "]", UBound(fixed)
  End Sub
End Class
Function Bounds(a)
  On Error Resume Next
  Bounds = "none"
  Bounds = UBound(a)
End Function

Dim nested, o, d
nested = Array(Array(1, 2), Array(Array(3, 4, 5), 6))
Erase nested(0)
WScript.Echo Bounds(nested(0)), Bounds(nested(1)) '> none 1
Erase nested(1)(0)
WScript.Echo Bounds(nested(1)(0)), nested(1)(1) '> none 6
Set o = New Store
o.list = Array(1, 2)
Erase o.list
WScript.Echo Bounds(o.list) '> none
o.list = Array(1, 2, 3)
With o
  Erase .list
End With
WScript.Echo Bounds(o.list) '> none
o.list = Array(1, 2, 3)
o.Clear
WScript.Echo Bounds(o.list) '> none
Set d = CreateObject("Scripting.Dictionary")
d("k") = Array(7)
Erase d("k")
WScript.Echo Bounds(d("k")) '> none

' A fixed array is emptied by its own class alone.
o.ClearFixed '> [] 2

' A parameter is the caller's variable, also for its elements.
Sub EmptyFirst(a)
  Erase a(0)
End Sub
Sub P
  Dim own
  own = Array(Array(1), 2)
  EmptyFirst own
  WScript.Echo Bounds(own(0)), own(1)
End Sub
P '> none 2

' The copy of an array stays; what a call gives is asked for once and gone.
Dim copy
nested = Array(Array(1, 2), 0)
copy = nested
Erase nested(0)
WScript.Echo Bounds(copy(0)) '> 1
Erase o.Give(1)
WScript.Echo o.asked '> 1

' What is no array, or walked by For Each, is refused and stays.
On Error Resume Next
Erase nested(1)
WScript.Echo Err.Number, nested(1) : Err.Clear '> 13 0
Erase o.asked
WScript.Echo Err.Number, o.asked : Err.Clear '> 13 1
o.fixed(1) = 6
Erase o.fixed
WScript.Echo Err.Number, o.fixed(1), UBound(o.fixed) '> 10 6 2
