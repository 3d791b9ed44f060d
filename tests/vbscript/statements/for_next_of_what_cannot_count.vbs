On Error Resume Next
Const C = 1
Dim a(2)
For C = 1 To 3
  n = n + 1
Next
WScript.Echo n, C '> 1 1
For F = 1 To 3
  n = n + 1
Next
WScript.Echo n '> 2
For a = 1 To 3
  n = n + 1
Next
WScript.Echo n, UBound(a) '> 3 2
For Each C In Array(1, 2)
  n = n + 1
Next
WScript.Echo n, C '> 4 1
Sub F : End Sub
On Error GoTo 0
For Each F In Array(1) '! 501
Next
