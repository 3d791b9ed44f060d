i = 0
Do
  i = i + 1
  If i = 4 Then Exit Do
Loop
WScript.Echo i '> 4
