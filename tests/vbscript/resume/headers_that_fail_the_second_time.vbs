' A header that fails does not find what an earlier loop has left in its place.
On Error Resume Next
Dim limits, lists, n, i, v, seen
limits = Array(3, "x", 2)
lists = Array(Array("a", "b"), 5, Array("c"))
For n = 0 To 2
  seen = ""
  Err.Clear
  For i = 1 To limits(n)
    seen = seen & i
    If Len(seen) > 5 Then Exit For
  Next
  WScript.Echo seen, Err.Number
Next
'> 123 0
'> 4 92
'> 12 0
For n = 0 To 2
  seen = ""
  Err.Clear
  For Each v In lists(n)
    seen = seen & v
    If Len(seen) > 5 Then Exit For
  Next
  WScript.Echo seen, Err.Number
Next
'> ab 0
'> b 451
'> c 0

' The same beside each other in a procedure, which handles its errors or leaves them to its caller.
Sub P(resumes)
  Dim i, v, seen
  If resumes Then On Error Resume Next
  For i = 1 To 3 Step 2
    seen = seen & i
  Next
  For Each v In 7
    seen = seen & "each"
    If Len(seen) > 9 Then Exit For
  Next
  For i = 1 To UBound(Nothing)
    seen = seen & "for" & i
    If Len(seen) > 19 Then Exit For
  Next
  WScript.Echo seen, Err.Number
End Sub
Sub Q(resumes)
  On Error Resume Next
  P resumes
  WScript.Echo Err.Number
End Sub
Q False '> 451
Q True
'> 13eachfor5 92
'> 92
