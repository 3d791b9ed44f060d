t = TypeName(a)
u = TypeName(b)
Dim a(3), b()
WScript.Echo t, u, TypeName(a), TypeName(b) '> Empty Empty Variant() Variant()
a(1) = 5
For i = 1 To 2
  Dim c(2)
  c(0) = c(0) + 1
Next
WScript.Echo c(0) '> 2
If False Then
  Dim d(2)
End If
WScript.Echo TypeName(d) '> Empty
Sub P
  WScript.Echo TypeName(x) '> Empty
  Dim x(1)
  x(0) = 1
  WScript.Echo TypeName(x) '> Variant()
End Sub
P
Usa
Dim e(1)
Sub Usa
  On Error Resume Next
  e(0) = 1
  WScript.Echo Err.Number '> 13
End Sub
