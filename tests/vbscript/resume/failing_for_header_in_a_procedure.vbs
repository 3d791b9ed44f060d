Sub P(ByRef v)
  On Error Resume Next
  Dim n, i
  For i = 1 To 2
    For v = 1 To CLng("x")
      n = n + 1
    Next
  Next
  WScript.Echo v, n, Err.Number '> 9 2 92
  For v = 1 To 3
    n = n + 1
  Next
  WScript.Echo v, n '> 4 5
End Sub
w = 9
P w
WScript.Echo w '> 4
