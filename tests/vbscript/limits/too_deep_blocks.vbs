On Error Resume Next
For i = 1 To 100000
  t = t & "If True Then" & vbLf
Next
Execute t
WScript.Echo Err.Number > 1000 '> True
