' The body runs once, then Next finds a loop that never began.
On Error Resume Next
For i = 1 To 1 / 0
  n = n + 1
Next
WScript.Echo n, Err.Number '> 1 92
