' An array is locked while For Each walks it, however the loop is left, and by each loop that walks it.
Dim a, b, x, y, n
Sub Tries(when)
  On Error Resume Next
  ReDim a(3)
  n = Err.Number
  Err.Clear
  Erase a
  WScript.Echo when & n & Err.Number
End Sub
a = Array(1, 2)
For Each x In a
  For Each y In a : Exit For : Next
  Tries x & ": " '> 1: 1010
  If x = 2 Then Exit For '> 2: 1010
Next
Tries "left: " '> left: 00

a = Array(1, 2)
For Each x In a : Next
Tries "ended: " '> ended: 00

Sub Leaves
  For Each x In a
    Exit Sub
  Next
End Sub
a = Array(1, 2)
Leaves
Tries "procedure left: " '> procedure left: 00

Sub Fails
  For Each x In a
    x = 1 / 0
  Next
End Sub
a = Array(1, 2)
On Error Resume Next
Fails
On Error GoTo 0
Tries "after an error: " '> after an error: 00

' A copy is another array, which may be changed while the first one is walked, and so is what a function hands out.
a = Array(1, 2)
b = a
For Each x In b
  Tries "the other: " '> the other: 00
  a = b '> the other: 00
Next
For Each x In b
  a = b
  ReDim Preserve a(2)
  a(0) = "other"
  WScript.Echo x, UBound(a), UBound(b), b(0) '> 1 2 1 1
Next
'> 2 2 1 1
Function Snapshot
  Snapshot = a
End Function
a = Array(1, 2)
For Each x In Snapshot()
  Tries "behind a function: "
  a = Array(5)
Next
'> behind a function: 00
'> behind a function: 00
a = Array(1, Array(2, 3))
For Each x In a(1)
  a(1) = Empty
  Tries x & " of an element: "
  a = Array(1, 2)
Next
'> 2 of an element: 00
'> 3 of an element: 00

' What is written into it is seen by the loop.
a = Array(1, 2, 3)
For Each x In a
  a(2) = x * 10
  WScript.Echo x & ":" & a(2) '> 1:10
Next
'> 2:20
'> 20:200
WScript.Echo Join(a) '> 1 2 200
For Each x In Array(1, 2) : a = Array(x) : Next
Tries "of its own: " '> of its own: 00

' The same in a field and in an element.
Class Box
  Public list
  Public Function Number
    On Error Resume Next
    ReDim list(4)
    Number = Err.Number
  End Function
End Class
Dim o
Set o = New Box
o.list = Array(1)
For Each x In o.list : n = o.Number : Next
WScript.Echo n, o.Number, UBound(o.list) '> 0 0 4
