n = 0
If False Then :
n = n + 1
If False Then : ' nada
n = n + 1
If True Then ::
n = n + 1
WScript.Echo n '> 3
Sub P
  If n = 3 Then :
  WScript.Echo "dentro" '> dentro
End Sub
P
For i = 1 To 2
  If i = 1 Then :
  s = s & i
Next
WScript.Echo s '> 12
