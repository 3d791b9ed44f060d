' As many indexes as the array has dimensions, also where numbers are written.
Dim one(2), two(2, 2), three(1, 1, 1), grown, i
ReDim grown(2, 2)
On Error Resume Next
For i = 0 To 2
  one(i, i) = 5 : WScript.Echo Err.Number : Err.Clear
  two(i) = 5 : WScript.Echo Err.Number : Err.Clear
  grown(i) = 5 : WScript.Echo Err.Number : Err.Clear
  two(i, i, i) = 5 : WScript.Echo Err.Number : Err.Clear
  three(i, i) = 5 : WScript.Echo Err.Number : Err.Clear
  three(i) = "text" : WScript.Echo Err.Number : Err.Clear
Next
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
'> 9
For Each i In two
  If Not IsEmpty(i) Then WScript.Echo "written"
Next
For Each i In grown
  If Not IsEmpty(i) Then WScript.Echo "written"
Next
Locals
Sub Locals
  Dim list(2), table(2, 2), k
  On Error Resume Next
  For k = 1 To 2
    table(k) = 7 : WScript.Echo Err.Number : Err.Clear
    list(k, 0) = 7 : WScript.Echo Err.Number : Err.Clear
    table(k, 3) = 7 : WScript.Echo Err.Number : Err.Clear
    table(3, k) = 7 : WScript.Echo Err.Number : Err.Clear
    table(-k, 1) = 7 : WScript.Echo Err.Number : Err.Clear
    k = CInt(k)
  Next
  '> 9
  '> 9
  '> 9
  '> 9
  '> 9
  '> 9
  '> 9
  '> 9
  '> 9
  '> 9
  WScript.Echo Join(list) & "|" & table(1, 0) & table(0, 1) '>   ||
End Sub
