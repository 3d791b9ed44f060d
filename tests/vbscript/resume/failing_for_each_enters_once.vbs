On Error Resume Next
For Each v In 5
  n = n + 1
Next
WScript.Echo n, Err.Number '> 1 92
