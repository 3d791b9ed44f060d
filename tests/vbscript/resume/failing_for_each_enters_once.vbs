On Error Resume Next
For Each v In 3.5
  n = n + 1
Next
WScript.Echo n, Err.Number, TypeName(v) '> 1 451 Empty
Err.Clear
For Each v In "texto"
  n = n + 1
  Exit For
Next
WScript.Echo n, Err.Number '> 2 451
Err.Clear
v = "antes"
For Each v In Array(1, 1 / 0)
  n = n + 1
  For Each w In Array(7, 8)
    s = s & w
  Next
Next
WScript.Echo n, Err.Number, v, s '> 3 11 antes 78
Sub P
  Dim m, x
  For Each x In Null
    m = m + 1
  Next
  WScript.Echo "no llega"
End Sub
Err.Clear
P
WScript.Echo Err.Number '> 451
