On Error Resume Next
n = 0
Do While 1 / 0 > 1
  n = n + 1
  If n = 3 Then Exit Do
Loop
WScript.Echo n, Err.Number '> 3 11
