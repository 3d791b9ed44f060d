On Error Resume Next
n = 0
Do Until 1 / 0
  n = n + 1
  If n = 2 Then Exit Do
Loop
WScript.Echo n '> 2
