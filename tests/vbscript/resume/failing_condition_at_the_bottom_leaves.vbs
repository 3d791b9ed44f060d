On Error Resume Next
n = 0
Do
  n = n + 1
  If n = 5 Then Exit Do
Loop While 1 / 0
WScript.Echo n, Err.Number '> 1 11
