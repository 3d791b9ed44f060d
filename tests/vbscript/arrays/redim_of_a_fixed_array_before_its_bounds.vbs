On Error Resume Next
Sub P
  On Error Resume Next
  Dim f(2), d()
  ReDim f("dos") : WScript.Echo Err.Number : Err.Clear '> 10
  ReDim f(-9) : WScript.Echo Err.Number : Err.Clear '> 10
  ReDim Preserve f(4) : WScript.Echo Err.Number : Err.Clear '> 10
  ReDim d("dos") : WScript.Echo Err.Number : Err.Clear '> 13
  ReDim d("2") : WScript.Echo Err.Number, UBound(d) '> 0 2
End Sub
P
Dim g(1)
ReDim g("dos") : WScript.Echo Err.Number : Err.Clear '> 10
Class C
  Private h(1)
  Sub Q
    ReDim h("x")
  End Sub
End Class
Set o = New C
o.Q : WScript.Echo Err.Number '> 10
