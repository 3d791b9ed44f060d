' A procedure takes a thousand parameters and no more; the text that asks for more is refused as a whole.
Function Names(count)
  Dim list(), i
  ReDim list(count - 1)
  For i = 1 To count
    list(i - 1) = "p" & i
  Next
  Names = Join(list, ", ")
End Function
ExecuteGlobal "Sub Most(" & Names(1000) & ") : WScript.Echo p1 + p1000 : End Sub"
WScript.Echo "compiled" '> compiled
On Error Resume Next
ExecuteGlobal "Sub TooMany(" & Names(1001) & ") : End Sub"
WScript.Echo Err.Number '> 1902
