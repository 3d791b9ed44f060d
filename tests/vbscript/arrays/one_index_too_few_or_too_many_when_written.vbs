' As many indexes as the array has dimensions, also where numbers are written.
Dim one(2), two(2, 2), three(1, 1, 1), grown, i, seen
Sub Note
  seen = seen & "," & Err.Number
  Err.Clear
End Sub
ReDim grown(2, 2)
On Error Resume Next
For i = 0 To 2
  one(i, i) = 5 : Note
  two(i) = 5 : Note
  grown(i) = 5 : Note
  two(i, i, i) = 5 : Note
  three(i, i) = 5 : Note
  three(i) = "text" : Note
Next
WScript.Echo seen '> ,9,9,9,9,9,9,9,9,9,9,9,9,9,9,9,9,9,9
For Each i In two
  If Not IsEmpty(i) Then WScript.Echo "written"
Next
For Each i In grown
  If Not IsEmpty(i) Then WScript.Echo "written"
Next
seen = ""
Locals '>   ||
WScript.Echo seen '> ,9,9,9,9,9,9,9,9,9,9
Sub Locals
  Dim list(2), table(2, 2), k
  On Error Resume Next
  For k = 1 To 2
    table(k) = 7 : Note
    list(k, 0) = 7 : Note
    table(k, 3) = 7 : Note
    table(3, k) = 7 : Note
    table(-k, 1) = 7 : Note
    k = CInt(k)
  Next
  WScript.Echo Join(list) & "|" & table(1, 0) & table(0, 1)
End Sub
